package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.misc.NativeObject;
import java.io.FileOutputStream;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.lang.reflect.Array;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.Map;
import java.util.WeakHashMap;

/**
 * The misuse run's call log: one line per call, written and handed to the system before the call
 * is made, so that the file ends with the call that was running when the process died.
 *
 * <p>A line is {@code <number> <thread> <indent><receiver>.<method>(<arguments>)}. Objects are
 * named {@code Class@n}, n being the number of the line whose call made or returned them (a
 * disposed object is marked with {@code !}); arrays show their length and first elements; native
 * addresses are in hexadecimal.
 */
final class CallLog implements AutoCloseable {
    private static final int SHOWN_ELEMENTS = 6;
    private static final int SHOWN_CHARS = 40;

    private final FileOutputStream out;
    private final Map<Object, Integer> ids = new WeakHashMap<>();
    private int lines;

    CallLog(Path file) {
        try {
            out = new FileOutputStream(file.toFile());
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
    }

    /** Writes a line; returns its number (the id of the object it makes, if any). */
    int write(String thread, int depth, String text) {
        int n = ++lines;
        String line = n + " " + thread + " " + "  ".repeat(depth) + text + "\n";
        try {
            out.write(line.getBytes(StandardCharsets.UTF_8));
            out.flush();
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
        return n;
    }

    /** Names the object after the line that made or returned it (first naming wins). */
    void name(Object object, int line) {
        if (object != null && !ids.containsKey(object)) {
            ids.put(object, line);
        }
    }

    String render(Object value) {
        if (value == null) {
            return "null";
        }
        if (value instanceof String) {
            String s = (String) value;
            String shown = s.length() > SHOWN_CHARS ? s.substring(0, SHOWN_CHARS) + "...(" + s.length() + ")" : s;
            StringBuilder b = new StringBuilder("\"");
            for (char c : shown.toCharArray()) {
                b.append(c < 0x20 || Character.isSurrogate(c) ? String.format("\\u%04x", (int) c) : String.valueOf(c));
            }
            return b.append('"').toString();
        }
        if (value.getClass().isArray()) {
            int length = Array.getLength(value);
            StringBuilder b = new StringBuilder(value.getClass().getComponentType().getSimpleName())
                    .append('[').append(length).append("]{");
            for (int i = 0; i < Math.min(length, SHOWN_ELEMENTS); i++) {
                b.append(i == 0 ? "" : ", ").append(render(Array.get(value, i)));
            }
            return b.append(length > SHOWN_ELEMENTS ? ", ...}" : "}").toString();
        }
        if (value instanceof Long) {
            // Native addresses (cell and node handles given to listeners).
            long address = (Long) value;
            return address == 0 ? "0" : "0x" + Long.toHexString(address);
        }
        if (value instanceof Float || value instanceof Integer || value instanceof Boolean || value instanceof Short
                || value instanceof Enum) {
            return String.valueOf(value);
        }
        Integer id = ids.get(value);
        String name = simpleName(value.getClass()) + "@" + (id == null ? "?" : id);
        if (value instanceof NativeObject && ((NativeObject) value).isDisposed()) {
            name += "!";
        }
        if (id == null && !(value instanceof NativeObject) && !value.getClass().isSynthetic()) {
            return value.toString();
        }
        return name;
    }

    static String simpleName(Class<?> c) {
        if (c.isSynthetic() || c.isAnonymousClass()) {
            return "lambda";
        }
        if (c.getEnclosingClass() == HostileElements.class) {
            return "Hostile" + c.getSimpleName() + "Element";
        }
        return c.getSimpleName();
    }

    int lines() {
        return lines;
    }

    @Override
    public void close() throws IOException {
        out.close();
    }
}
