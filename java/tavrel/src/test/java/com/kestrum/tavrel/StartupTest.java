package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.misc.DebugOutput;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Toolkit;
import java.io.IOException;
import java.lang.reflect.Method;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;
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

    @Test
    void everyUnitHasItsVersionCheckObject() {
        assertTrue(Toolkit.moduleCheckCount(0) >= 2);
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
