package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.misc.DebugOutput;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Toolkit;
import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.lang.reflect.Method;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;
import java.util.regex.Pattern;
import org.junit.jupiter.api.Test;

class StartupTest {
    @Test
    void productNameAndVersionAreTheToolkitsOwn() {
        Journal.start();
        String name = PoTavrel.getProductName();
        String version = PoTavrel.getVersion();
        List<String> calls = Journal.stop();
        assertEquals(List.of("PoTavrel::getProductName()", "PoTavrel::getVersion()"), calls);
        assertEquals("Kestrum Tavrel", name);
        assertEquals("10.4.0", version);
    }

    @Test
    void initNativePrintsItsLineAndInitialisesTheToolkitAgain() throws Exception {
        JarInitializer.init();
        int before = Toolkit.poTavrelInitCount();
        assertEquals(1, before, "loading the library initialises the extension once");

        Method initNative = JarInitializer.class.getDeclaredMethod("initNative");
        initNative.setAccessible(true);
        DebugOutput.Mode mode = DebugOutput.getMode();
        DebugOutput.setMode(DebugOutput.Mode.CAPTURE);
        DebugOutput.takeCaptured();
        Journal.start();
        try {
            initNative.invoke(null);
        } finally {
            DebugOutput.setMode(mode);
        }
        assertEquals(List.of("PoTavrel::init()"), Journal.stop());
        assertEquals(List.of("----> PoTavrel init\n"), DebugOutput.takeCaptured());
        assertEquals(before + 1, Toolkit.poTavrelInitCount());
    }

    @Test
    void resourceHandleDeletesOnceAndIgnoresZero() {
        new PoTavrel.NativeResourceHandle(0).run();
        PoTavrel.NativeResourceHandle live = new PoTavrel.NativeResourceHandle(Toolkit.newPoTavrel());
        live.run();
        live.run(); // a second run must not delete again
    }

    /**
     * The units that hold no version-check object: those of the cell classes, of PbDefinedValue,
     * of five graph attribute classes, of nine element bindings and of the nine Java-extensible
     * element classes built on those elements.
     */
    private static final Set<String> UNITS_WITHOUT_VERSION_CHECK = unitsWithoutVersionCheck();

    private static Set<String> unitsWithoutVersionCheck() {
        Set<String> units = new TreeSet<>();
        for (String c : List.of("PbCell", "PbHexahedronCell", "PbPixelCell", "PbPyramidCell", "PbQuadrangleCell",
                "PbTetrahedronCell", "PbTriangleCell", "PbVoxelCell", "PbWedgeCell", "PbDefinedValue",
                "PbDataMapping", "PbDomain", "PbLinearDataMapping", "PbNonLinearDataMapping",
                "PbNonLinearDataMapping2")) {
            units.add(c + "_jni.cpp");
        }
        for (String e : List.of("DataMapping", "DateFormatMapping", "Domain", "IsovaluesList", "Mesh1DFilter",
                "Mesh", "MiscTextAttr", "NumericDisplayFormat", "Profile")) {
            units.add("Po" + e + "Element_jni.cpp");
            units.add("CustomPo" + e + "Element.cpp");
        }
        return units;
    }

    /**
     * The compilation units of a library, from the file symbols of its symbol table, each with
     * whether it defines the file-static version-check object (a local symbol that follows the
     * unit's file symbol).
     */
    private static Map<String, Boolean> versionChecksByUnit(String library) throws Exception {
        Path lib = Paths.get(System.getProperty("kestrum.native.dir"), library);
        Process readelf = new ProcessBuilder("readelf", "-sW", lib.toString()).redirectErrorStream(true).start();
        Map<String, Boolean> units = new TreeMap<>();
        try (BufferedReader r = new BufferedReader(new InputStreamReader(readelf.getInputStream(),
                StandardCharsets.UTF_8))) {
            boolean symtab = false;
            String unit = null;
            String line;
            while ((line = r.readLine()) != null) {
                if (line.startsWith("Symbol table")) {
                    symtab = line.contains("'.symtab'");
                    continue;
                }
                String[] f = line.trim().split("\\s+");
                if (!symtab || f.length < 8) {
                    continue;
                }
                if (f[3].equals("FILE")) {
                    unit = f[7].endsWith(".cpp") ? f[7] : null;
                    if (unit != null) {
                        units.putIfAbsent(unit, false);
                    }
                } else if (unit != null && f[4].equals("LOCAL") && f[7].equals("_ZL29soVersionDeprecatedErrorCheck")) {
                    units.put(unit, true);
                }
            }
        }
        assertEquals(0, readelf.waitFor(), "readelf failed");
        return units;
    }

    @Test
    void everyUnitOutsideTheListedOnesHasItsVersionCheckObject() throws Exception {
        Map<String, Boolean> units = versionChecksByUnit(System.mapLibraryName("com.kestrum.tavrel"));
        // Every Java class with native methods has its unit (nested classes share their outer one).
        for (Method m : ExportedSymbolsTest.declaredNatives()) {
            String outer = m.getDeclaringClass().getName().replaceFirst("\\$.*", "");
            String unit = outer.substring(outer.lastIndexOf('.') + 1) + "_jni.cpp";
            assertTrue(units.containsKey(unit), "no unit " + unit + " among " + units.keySet());
        }
        for (String unit : List.of("CustomPoNode.cpp", "CustomPoCellFilter.cpp", "PoProbeCallback.cpp",
                "PoRebuildCallback.cpp", "Version.cpp")) {
            assertTrue(units.containsKey(unit), "no unit " + unit + " among " + units.keySet());
        }
        Set<String> with = new TreeSet<>();
        Set<String> lacking = new TreeSet<>();
        Set<String> unexpected = new TreeSet<>();
        units.forEach((unit, has) -> {
            boolean listed = UNITS_WITHOUT_VERSION_CHECK.contains(unit);
            if (has) {
                with.add(unit);
            }
            if (!has && !listed) {
                lacking.add(unit);
            }
            if (has && listed) {
                unexpected.add(unit);
            }
        });
        assertEquals(Set.of(), lacking, "units without their version-check object");
        assertEquals(Set.of(), unexpected, "listed units with a version-check object");

        // Each is made once, with 0, when its library is loaded (the test library has its own).
        long testkit = versionChecksByUnit(System.mapLibraryName("tavrel_testkit")).values().stream()
                .filter(b -> b).count();
        assertEquals(with.size() + testkit, Toolkit.moduleCheckCount(0));
        assertEquals(Toolkit.moduleCheckTotal(), Toolkit.moduleCheckCount(0), "all are made with 0");
    }

    @Test
    void libraryCarriesItsThreeIdentificationStrings() throws IOException {
        byte[] bytes = Files.readAllBytes(Paths.get(System.getProperty("kestrum.native.dir"),
                System.mapLibraryName("com.kestrum.tavrel")));
        List<String> found = new ArrayList<>();
        byte[] marker = "@(#) ".getBytes(StandardCharsets.US_ASCII);
        for (int i = 0; i + marker.length < bytes.length; i++) {
            int k = 0;
            while (k < marker.length && bytes[i + k] == marker[k]) {
                k++;
            }
            if (k == marker.length) {
                int end = i;
                while (bytes[end] != 0) {
                    end++;
                }
                found.add(new String(bytes, i, end - i, StandardCharsets.US_ASCII));
                i = end;
            }
        }
        assertEquals(3, found.size(), found.toString());
        assertTrue(found.contains("@(#) Kestrum(R) Java Tavrel native library for Linux"));
        Pattern version = Pattern.compile("@\\(#\\) \\d+\\.\\d+\\.\\d+\\.\\d+\\.Release\\.[0-9a-f]{40}");
        assertTrue(found.stream().anyMatch(s -> version.matcher(s).matches()), found.toString());
        assertTrue(found.stream().anyMatch(s -> s.startsWith("@(#) Copyright")), found.toString());
    }
}
