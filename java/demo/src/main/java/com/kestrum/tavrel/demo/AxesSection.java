package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoAngularAxis;
import com.kestrum.tavrel.graph.PoCartesianAxis;
import com.kestrum.tavrel.graph.PoLinearAxis;
import com.kestrum.tavrel.graph.PoLogAxis;
import com.kestrum.tavrel.graph.PoTimeAxis;

/** A linear, a logarithmic, an angular and a time axis built from Java, and the graduations they compute. */
final class AxesSection implements Demo.Section {
    @Override
    public String title() {
        return "Axes and their graduations";
    }

    @Override
    public void run() {
        SbVec3f origin = new SbVec3f(0, 0, 0);
        try (PoLinearAxis linear = new PoLinearAxis(origin, 100, PoCartesianAxis.Types.XY, 25)) {
            linear.rebuild();
            System.out.println("Linear axis from 0 to 100, step " + linear.getStep() + ": " + linear.getGraduations());
            linear.setFormat(new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 0, 1));
            System.out.println("  with a number format of one decimal (rebuilt at once): " + linear.getGraduations());
        }
        try (PoLogAxis log = new PoLogAxis(origin, 4, PoCartesianAxis.Types.XY,
                PoLogAxis.DecadeListDefs.DECADELISTAUTO, null)) {
            log.rebuild();
            System.out.println("Logarithmic axis over the exponents 0 to 4: " + log.getGraduations());
        }
        try (PoLogAxis log = new PoLogAxis(origin, 0, PoCartesianAxis.Types.XY,
                PoLogAxis.DecadeListDefs.DECADELISTNONAUTO, new int[] {1, 2, 5}, 0, 2)) {
            log.rebuild();
            System.out.println("  with the decade list 1, 2, 5 over 1 to 100: " + log.getGraduations());
        }
        try (PoAngularAxis angular = new PoAngularAxis(0, 0, 1, 0, 45)) {
            angular.rebuild();
            System.out.println("Angular axis every " + angular.getAngleStep() + " degrees: "
                    + angular.getGraduations());
        }
        try (PoTimeAxis time = new PoTimeAxis("2024-02-27", "2024-03-02", 0, PoTimeAxis.Types.X)) {
            time.rebuild();
            System.out.println("Time axis from 2024-02-27 to 2024-03-02: " + time.getGraduations());
            time.setDateFormatMapping(new PbDateFormatMapping("2024-02-27", "2024-02-28", 0, 1, "%d/%m"));
            System.out.println("  through a date mapping with the format %d/%m: " + time.getGraduations()
                    + ", coordinates " + time.getGrad().first() + " to " + time.getGrad().last());
        }
    }
}
