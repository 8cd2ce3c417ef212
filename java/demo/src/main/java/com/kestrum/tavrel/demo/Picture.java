package com.kestrum.tavrel.demo;

import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/**
 * What a render kept of the graph nodes, read back from its SVG document: one line per line,
 * filled polygon or text, in scene coordinates (the document's y points down, the scene's up).
 */
final class Picture {
    private static final Pattern ELEMENT = Pattern.compile(
            "<(polyline|polygon) points=\"([^\"]*)\"(?: fill=\"(#[0-9a-f]{6})\")?[^>]*>"
                    + "|<text x=\"([^\"]*)\" y=\"([^\"]*)\"[^>]*>([^<]*)</text>");

    private Picture() {}

    /** The elements of the document, in the order drawn. */
    static List<String> describe(String svg) {
        List<String> lines = new ArrayList<>();
        Matcher m = ELEMENT.matcher(svg);
        while (m.find()) {
            if (m.group(1) != null) {
                StringBuilder line = new StringBuilder(m.group(1).equals("polygon") ? "polygon" : "line");
                if (m.group(3) != null) {
                    line.append(' ').append(m.group(3));
                }
                for (String p : m.group(2).split(" ")) {
                    String[] xy = p.split(",");
                    line.append(' ').append(point(xy[0], xy[1]));
                }
                lines.add(line.toString());
            } else {
                lines.add("text \"" + unescaped(m.group(6)) + "\" at " + point(m.group(4), m.group(5)));
            }
        }
        return lines;
    }

    /** How many lines, polygons and texts the document has. */
    static String summary(String svg) {
        int lines = 0;
        int polygons = 0;
        int texts = 0;
        for (String e : describe(svg)) {
            if (e.startsWith("line")) {
                lines++;
            } else if (e.startsWith("polygon")) {
                polygons++;
            } else {
                texts++;
            }
        }
        return lines + " lines, " + polygons + " filled polygons and " + texts + " texts";
    }

    private static String point(String x, String y) {
        return "(" + number(Double.parseDouble(x)) + ", " + number(-Double.parseDouble(y)) + ")";
    }

    private static String number(double v) {
        String s = String.format(Locale.ROOT, "%.3f", v + 0.0).replaceAll("0+$", "").replaceAll("\\.$", "");
        return s.equals("-0") ? "0" : s;
    }

    private static String unescaped(String text) {
        return text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
    }
}
