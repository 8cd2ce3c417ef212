package com.kestrum.tavrel.testkit;

import java.io.IOException;
import java.io.UncheckedIOException;
import java.lang.management.ManagementFactory;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.List;
import java.util.concurrent.TimeUnit;
import java.util.regex.Pattern;
import java.util.stream.Stream;

/**
 * Runs the {@code main} of a test class in a child JVM, so that a test of something that could
 * crash the process sees the crash as a result instead of dying with it.
 *
 * <p>The child gets this JVM's executable, class path, {@code -Xcheck:jni}, its native-access
 * permission, the system properties that locate the native libraries, the JNI call recorder
 * ({@link JniCalls}) when this JVM has it, and this process's environment (so a run under a
 * sanitizer, whose runtime is preloaded through the environment, sanitizes the child too). Its
 * working folder is a new temporary folder, where the JVM writes its error file if it crashes.
 * The folders of children that exited normally with 0 and printed no JNI warning are deleted
 * when this JVM exits; the others stay for inspection.
 */
public final class ChildJvm {
    /** Lines that only a crash or a sanitizer writes. */
    private static final Pattern FAULT = Pattern.compile(
            "# A fatal error has been detected by the Java Runtime Environment"
                    + "|ERROR: AddressSanitizer|ERROR: LeakSanitizer|runtime error: |UndefinedBehaviorSanitizer"
                    + "|FATAL ERROR in native method|terminate called");

    private static final String[] FORWARDED_PROPERTIES = {
        "kestrum.native.dir", "tavrel.testkit.library", "tavrel.jnicalls.agent"
    };

    /** Folders of clean runs, deleted at exit (tests may still read them until then). */
    private static final List<Path> CLEAN_FOLDERS = new ArrayList<>();

    static {
        Runtime.getRuntime().addShutdownHook(new Thread(ChildJvm::deleteCleanFolders, "child-folder-cleanup"));
    }

    private ChildJvm() {}

    private static void deleteCleanFolders() {
        List<Path> folders;
        synchronized (CLEAN_FOLDERS) {
            folders = new ArrayList<>(CLEAN_FOLDERS);
        }
        for (Path folder : folders) {
            try (Stream<Path> files = Files.walk(folder)) {
                for (Path file : files.sorted(Comparator.reverseOrder()).toList()) {
                    Files.deleteIfExists(file);
                }
            } catch (IOException | UncheckedIOException e) {
                // Left behind: a temporary folder, nothing more.
            }
        }
    }

    /** What a child JVM did. */
    public record Result(int exitCode, String output, Path workDir, boolean timedOut) {
        /** True when the child crashed, was killed, timed out or a sanitizer reported. */
        public boolean crashed() {
            return timedOut || exitCode > 128 || exitCode < 0 || FAULT.matcher(output).find()
                    || errorFile() != null;
        }

        /** True when the child's JNI checks printed a warning. */
        public boolean jniWarning() {
            return output.contains("WARNING in native method");
        }

        /** The JVM's error file (hs_err_pid*.log) in the child's folder, or null. */
        public Path errorFile() {
            try (var files = Files.list(workDir)) {
                return files.filter(f -> f.getFileName().toString().startsWith("hs_err_pid"))
                        .findFirst().orElse(null);
            } catch (IOException e) {
                return null;
            }
        }

        /** A report for a failed assertion: exit code, the end of the output, the error file. */
        public String describe() {
            String tail = output.length() > 6000 ? "..." + output.substring(output.length() - 6000) : output;
            Path err = errorFile();
            return "child JVM exit code " + exitCode + (timedOut ? " (timed out)" : "")
                    + (err != null ? ", error file " + err : "") + "\n--- output ---\n" + tail;
        }
    }

    /**
     * Runs {@code mainClass.main(args)} in a child JVM; waits at most {@code timeoutSeconds}, then
     * asks the child for a thread dump (it goes to the child's output) and kills it.
     */
    public static Result run(Class<?> mainClass, List<String> jvmOptions, long timeoutSeconds, String... args)
            throws IOException, InterruptedException {
        Path workDir = Files.createTempDirectory("tavrel-child-");
        List<String> command = new ArrayList<>();
        command.add(Path.of(System.getProperty("java.home"), "bin", "java").toString());
        command.add("-Xcheck:jni");
        command.add("-XX:+UseSerialGC");
        // This JVM's permission for native access (JDK 24 and newer warn about System.load without it).
        for (String option : ManagementFactory.getRuntimeMXBean().getInputArguments()) {
            if (option.startsWith("--enable-native-access=")) {
                command.add(option);
            }
        }
        String agent = System.getProperty("tavrel.jnicalls.agent");
        if (agent != null) {
            command.add("-agentpath:" + agent);
        }
        for (String name : FORWARDED_PROPERTIES) {
            String value = System.getProperty(name);
            if (value != null) {
                command.add("-D" + name + "=" + value);
            }
        }
        command.addAll(jvmOptions);
        command.add("-cp");
        command.add(System.getProperty("java.class.path"));
        command.add(mainClass.getName());
        command.addAll(Arrays.asList(args));

        Path out = workDir.resolve("output.txt");
        Process process = new ProcessBuilder(command)
                .directory(workDir.toFile())
                .redirectErrorStream(true)
                .redirectOutput(out.toFile())
                .start();
        boolean finished = process.waitFor(timeoutSeconds, TimeUnit.SECONDS);
        if (!finished) {
            dumpThreads(process);
            process.destroyForcibly();
            process.waitFor();
        }
        String output = Files.readString(out, StandardCharsets.UTF_8);
        Result result = new Result(finished ? process.exitValue() : -1, output, workDir, !finished);
        if (result.exitCode() == 0 && !result.crashed() && !result.jniWarning()) {
            synchronized (CLEAN_FOLDERS) {
                CLEAN_FOLDERS.add(workDir);
            }
        }
        return result;
    }

    /** Asks a hung child for a thread dump (SIGQUIT), which it prints to its output. */
    private static void dumpThreads(Process process) throws InterruptedException {
        try {
            new ProcessBuilder("kill", "-QUIT", Long.toString(process.pid())).start().waitFor();
            process.waitFor(2, TimeUnit.SECONDS);
        } catch (IOException e) {
            // No thread dump then; the timeout is reported all the same.
        }
    }

    /** As {@link #run(Class, List, long, String...)} with no extra options and a two-minute limit. */
    public static Result run(Class<?> mainClass, String... args) throws IOException, InterruptedException {
        return run(mainClass, List.of(), 120, args);
    }
}
