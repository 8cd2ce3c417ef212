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
 * class path (inside the jar), copied into one temporary folder for the whole process and
 * loaded from it; the libraries find each other in that folder.
 */
public final class NativeLibraries {
    /** System property naming a folder that holds the native libraries. */
    public static final String DIRECTORY_PROPERTY = "kestrum.native.dir";

    private static final Set<String> LOADED = new HashSet<>();
    private static Path extractionFolder;

    private NativeLibraries() {}

    /**
     * Loads the libraries in the order given.
     *
     * @param anchor a class of the jar that holds the libraries
     * @param resourceFolder the folder of the libraries inside the jar, e.g.
     *     "/com/kestrum/corvel/native/linux-x86-64"
     * @param names library names without "lib" and ".so", e.g. "com.kestrum.corvel"
     * @throws UnsatisfiedLinkError when a library cannot be found or loaded
     */
    public static synchronized void load(Class<?> anchor, String resourceFolder, String... names) {
        String directory = System.getProperty(DIRECTORY_PROPERTY);
        for (String name : names) {
            if (LOADED.contains(name)) {
                continue;
            }
            String file = System.mapLibraryName(name);
            Path path = directory != null && !directory.isEmpty()
                    ? Paths.get(directory, file)
                    : extract(anchor, resourceFolder + "/" + file, file);
            if (!Files.isRegularFile(path)) {
                throw new UnsatisfiedLinkError("Native library " + file + " not found in " + path.getParent()
                        + " (set -D" + DIRECTORY_PROPERTY + " to the folder that holds it)");
            }
            System.load(path.toAbsolutePath().toString());
            LOADED.add(name);
        }
    }

    private static Path extract(Class<?> anchor, String resource, String file) {
        try (InputStream in = anchor.getResourceAsStream(resource)) {
            if (in == null) {
                throw new UnsatisfiedLinkError("Native library " + file + " is not on the class path at " + resource
                        + " (set -D" + DIRECTORY_PROPERTY + " to the folder that holds it)");
            }
            if (extractionFolder == null) {
                extractionFolder = Files.createTempDirectory("kestrum-native-");
                extractionFolder.toFile().deleteOnExit();
            }
            Path target = extractionFolder.resolve(file);
            Files.copy(in, target, StandardCopyOption.REPLACE_EXISTING);
            target.toFile().deleteOnExit();
            return target;
        } catch (IOException e) {
            throw new UncheckedIOException("Cannot unpack native library " + file, e);
        }
    }
}
