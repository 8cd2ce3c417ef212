package com.kestrum.tavrel.demo;

import com.kestrum.tavrel.PoTavrel;
import java.util.List;

/**
 * Uses the Tavrel Java interface for real and prints what it did. Each section shows one part
 * of the interface.
 */
public final class Demo {
    /** One part of the demo. */
    interface Section {
        String title();

        void run();
    }

    private Demo() {}

    public static void main(String[] args) {
        List<Section> sections = List.of(
                new StartupSection(),
                new MeshSection(),
                new RepresentationsSection(),
                new CustomNodeSection(),
                new MeshNodeSection(),
                new PropertyNodeSection(),
                new ElementSection(),
                new GraphSection(),
                new AxesSection(),
                new ShapesSection(),
                new ChartSection(),
                new DashboardSection());
        for (Section s : sections) {
            System.out.println();
            System.out.println("== " + s.title() + " ==");
            s.run();
        }
        System.out.println();
        System.out.println("Demo finished.");
    }

    /** Loading the library and asking the toolkit who it is. */
    static final class StartupSection implements Section {
        @Override
        public String title() {
            return "Start-up";
        }

        @Override
        public void run() {
            System.out.println("Native libraries loaded from "
                    + (System.getProperty("kestrum.native.dir") != null ? "the build tree" : "the jars"));
            System.out.println("Product: " + PoTavrel.getProductName());
            System.out.println("Version: " + PoTavrel.getVersion());
        }
    }
}
