package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.ChildJvm;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;
import java.util.concurrent.CompletableFuture;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;

/**
 * Loading the native libraries from the class path, as a user's program does: no folder named,
 * every library copied out of the jars into a private folder of the process and deleted once
 * loaded; two processes at once do not meet.
 */
class NativeUnpackingTest {
    private static final List<String> LIBRARIES = List.of("libzel_corvel_base.so", "libzel_corvel.so",
            "libzel_corvel_gl.so", "libcom.kestrum.corvel.so", "libzel_tavrel.so", "libcom.kestrum.tavrel.so");

    /** Child: uses the library, then prints the mappings of the files it loaded from a temporary folder. */
    public static void main(String[] args) throws IOException {
        System.out.println("product " + PoTavrel.getProductName() + " " + PoTavrel.getVersion());
        List<String> mapped;
        try (Stream<String> maps = Files.lines(Path.of("/proc/self/maps"))) {
            mapped = maps.filter(l -> l.contains("kestrum-native-")).map(l -> l.substring(l.indexOf('/')))
                    .distinct().collect(Collectors.toList());
        }
        mapped.forEach(l -> System.out.println("mapped " + l));
        // Only this process's own folder: the other process may delete its own at any moment.
        Set<Path> own = mapped.stream().map(l -> Path.of(l.replace(" (deleted)", "")).getParent())
                .collect(Collectors.toCollection(TreeSet::new));
        for (Path f : own) {
            try (Stream<Path> files = Files.list(f)) {
                System.out.println("folder " + f + " " + Files.getPosixFilePermissions(f).size()
                        + " permissions, " + files.count() + " files");
            }
        }
    }

    @Test
    void twoProcessesUnpackIntoTheirOwnFoldersAndLeaveNothing() throws Exception {
        Path tmp = Files.createTempDirectory("tavrel-unpack-");
        // An empty folder property: the libraries come from the class path, as in a user's program.
        List<String> options = List.of("-Dkestrum.native.dir=", "-Djava.io.tmpdir=" + tmp);
        CompletableFuture<ChildJvm.Result> first = CompletableFuture.supplyAsync(() -> run(options));
        CompletableFuture<ChildJvm.Result> second = CompletableFuture.supplyAsync(() -> run(options));
        Set<String> folders = new TreeSet<>();
        for (ChildJvm.Result r : List.of(first.get(), second.get())) {
            assertEquals(0, r.exitCode(), r.describe());
            assertFalse(r.jniWarning(), r.describe());
            assertTrue(r.output().contains("product Kestrum Tavrel 10.4.0"), r.describe());
            Set<String> mapped = new TreeSet<>();
            Set<String> own = new TreeSet<>();
            for (String line : r.output().split("\n")) {
                if (line.startsWith("mapped ")) {
                    Path file = Path.of(line.substring(7).replace(" (deleted)", ""));
                    assertTrue(line.endsWith(" (deleted)"), "loaded and deleted: " + line);
                    assertEquals(tmp, file.getParent().getParent(), line);
                    mapped.add(file.getFileName().toString());
                    own.add(file.getParent().toString());
                }
            }
            assertEquals(new TreeSet<>(LIBRARIES), mapped, r.describe());
            assertEquals(1, own.size(), "one folder per process: " + own);
            folders.addAll(own);
            // While the process runs, its folder is private and holds no file.
            assertTrue(r.output().contains("folder " + own.iterator().next() + " 3 permissions, 0 files"),
                    r.describe());
        }
        assertEquals(2, folders.size(), "each process has its own folder: " + folders);
        try (Stream<Path> left = Files.list(tmp)) {
            assertEquals(List.of(), left.collect(Collectors.toList()), "left behind after both exited");
        }
        Files.delete(tmp);
    }

    @Test
    void aNamedFolderOverridesTheJarsAndIsReportedWhenItLacksALibrary() throws Exception {
        Path empty = Files.createTempDirectory("tavrel-no-libraries-");
        ChildJvm.Result r = ChildJvm.run(NativeUnpackingTest.class, List.of("-Dkestrum.native.dir=" + empty),
                120);
        Files.delete(empty);
        assertNotEquals(0, r.exitCode(), r.describe());
        assertFalse(r.crashed(), r.describe());
        assertTrue(r.output().contains("Native library libzel_corvel_base.so not found in " + empty
                + " (named by -Dkestrum.native.dir)"), r.describe());
    }

    private static ChildJvm.Result run(List<String> options) {
        try {
            return ChildJvm.run(NativeUnpackingTest.class, options, 120);
        } catch (IOException | InterruptedException e) {
            throw new IllegalStateException(e);
        }
    }
}
