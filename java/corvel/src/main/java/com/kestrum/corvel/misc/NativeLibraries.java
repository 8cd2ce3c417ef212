package com.kestrum.corvel.misc;

import java.io.IOException;
import java.io.InputStream;
import java.io.UncheckedIOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardCopyOption;
import java.util.HashSet;
import java.util.Set;

/**
 * Loads native libraries, each at most once per process.
 *
 * <p>When the system property {@value #DIRECTORY_PROPERTY} names a folder (a native build
 * tree, for instance), the libraries are loaded from there. Otherwise they are taken from the
 * class path (inside the jar that holds the anchor class): each is copied into one private
 * temporary folder for the whole process (made afresh under {@code java.io.tmpdir}, readable by
 * its owner only, so two processes never share or overwrite each other's files), loaded, and
 * deleted again at once; the process keeps what it loaded, and the folder itself is deleted when
 * the JVM exits. Libraries are loaded in the order given, each after the ones it needs, so the
 * system's loader finds every dependency already loaded and never looks for a file.
 */
public final class NativeLibraries {
    /** System property naming a folder that holds the native libraries. */
    public static final String DIRECTORY_PROPERTY = "kestrum.native.dir";

    private static final Set<String> LOADED = new HashSet<>();
    private static Path extractionFolder;

    private NativeLibraries() {}

    /**
     * Loads the libraries in the order given, skipping those already loaded.
     *
     * @param anchor a class of the jar that holds the libraries
     * @param resourceFolder the folder of the libraries inside the jar, e.g.
     *     "/com/kestrum/corvel/native/linux-x86-64"
     * @param names library names without "lib" and ".so", e.g. "com.kestrum.corvel", each after
     *     the libraries it needs
     * @throws UnsatisfiedLinkError when a library is neither in the folder named by
     *     {@value #DIRECTORY_PROPERTY} nor on the class path, or cannot be loaded
     * @throws UncheckedIOException when a library cannot be copied out of the jar
     * @throws NullPointerException when an argument or a name is null
     */
    public static synchronized void load(Class<?> anchor, String resourceFolder, String... names) {
        Arguments.notNull(anchor, "anchor");
        Arguments.notNull(resourceFolder, "resourceFolder");
        Arguments.notNull(names, "names");
        for (int i = 0; i < names.length; i++) {
            Arguments.notNull(names[i], "names[" + i + "]");
        }
        String directory = System.getProperty(DIRECTORY_PROPERTY);
        for (String name : names) {
            if (LOADED.contains(name)) {
                continue;
            }
            String file = System.mapLibraryName(name);
            if (directory != null && !directory.isEmpty()) {
                Path path = Paths.get(directory, file);
                if (!Files.isRegularFile(path)) {
                    throw new UnsatisfiedLinkError("Native library " + file + " not found in " + directory
                            + " (named by -D" + DIRECTORY_PROPERTY + ")");
                }
                System.load(path.toAbsolutePath().toString());
            } else {
                Path path = extract(anchor, resourceFolder + "/" + file, file);
                try {
                    System.load(path.toString());
                } finally {
                    delete(path);
                }
            }
            LOADED.add(name);
        }
    }

    /** Copies a library out of the class path into the process's folder. */
    private static Path extract(Class<?> anchor, String resource, String file) {
        try (InputStream in = anchor.getResourceAsStream(resource)) {
            if (in == null) {
                throw new UnsatisfiedLinkError("Native library " + file + " is not on the class path at " + resource
                        + " (set -D" + DIRECTORY_PROPERTY + " to the folder that holds it)");
            }
            Path target = folder().resolve(file);
            Files.copy(in, target, StandardCopyOption.REPLACE_EXISTING);
            return target.toAbsolutePath();
        } catch (IOException e) {
            throw new UncheckedIOException("Cannot unpack native library " + file, e);
        }
    }

    /** The process's private folder, made on first use and deleted when the JVM exits. */
    private static Path folder() throws IOException {
        if (extractionFolder == null) {
            // Made with permissions for its owner only, under a name no other process gets.
            Path made = Files.createTempDirectory("kestrum-native-");
            Runtime.getRuntime().addShutdownHook(new Thread(() -> delete(made), "kestrum-native-cleanup"));
            extractionFolder = made;
        }
        return extractionFolder;
    }

    /** Deletes a file or an empty folder; one that cannot be deleted is left (the loaded code stays). */
    private static void delete(Path path) {
        try {
            Files.deleteIfExists(path);
        } catch (IOException e) {
            // Left behind in the temporary folder; nothing depends on it any more.
        }
    }
}
