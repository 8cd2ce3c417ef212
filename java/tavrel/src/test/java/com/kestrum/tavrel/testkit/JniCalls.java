package com.kestrum.tavrel.testkit;

import com.kestrum.corvel.misc.ManagedObjects;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * The JNI functions that native code calls on this thread while a block runs, and the references
 * they make and free.
 *
 * <p>The JVMTI agent {@code libtavrel_jnicalls.so}, which every test JVM loads with
 * {@code -agentpath} (its path is the system property {@code tavrel.jnicalls.agent}), records
 * the calls of the thread that asked for it, and of no other thread; nothing is recorded
 * otherwise. Under {@code -Xcheck:jni} the recorded calls still go through the JVM's checks.
 * Calls made by the JDK's own native code (its libraries under {@code java.home}) are left out;
 * the first run of some Java code can still show a few calls of the JVM's (a lambda made for
 * the first time, for instance), so a test runs its block once before recording it.
 *
 * <p>Each call is one line: the function's name and, in brackets, the arguments that matter,
 * then {@code " -> "} and the result when it is a value, a class or null:
 *
 * <pre>
 *   GetArrayLength() -&gt; 3
 *   GetObjectClass() -&gt; Lcom/kestrum/corvel/SbVec3f;
 *   GetFieldID(Lcom/kestrum/corvel/SbVec3f;, "array", "[F")
 *   GetObjectArrayElement(0)
 *   GetObjectField(array)
 *   ReleaseFloatArrayElements(JNI_ABORT)
 *   DeleteLocalRef()
 *   CallVoidMethodV(invokeNativ(JJ)V)
 *   ExceptionOccurred() -&gt; null
 * </pre>
 *
 * Classes are shown by signature, method IDs by name and signature, field IDs by the name looked
 * up while recording ("?" for one looked up before), strings quoted, numbers and booleans as
 * they are, release modes by name; an object reference only when it is null; buffers and
 * {@code va_list}s not at all. A variadic function is recorded under its own name; the C++
 * members of {@code JNIEnv} ({@code env->CallVoidMethod(...)}) call the {@code va_list} forms,
 * so C++ code shows as {@code CallVoidMethodV}.
 *
 * <p>The thread's environment lookups, {@code GetEnv} of the {@code JavaVM}, are recorded as well,
 * as {@code GetEnv(0x10008) -> 0} (the JNI version asked for, the result).
 *
 * <p>{@link #recordWithToolkit} puts the toolkit stand-in's calls in the same timeline: each line
 * of its call journal ({@link Journal}) made on the recording thread is one more line,
 * {@code "toolkit: "} and the journal's line, where the toolkit was called (between the JNI calls
 * before and after it).
 *
 * <p>Local references count as made by every function that returns a non-null reference other
 * than {@code NewGlobalRef} and {@code NewWeakGlobalRef}, and as freed by {@code DeleteLocalRef}
 * of a non-null one; the references a native method holds when it returns are freed by the JVM
 * and not counted.
 */
public final class JniCalls {
    private static final String AGENT_PROPERTY = "tavrel.jnicalls.agent";
    private static final int MAX_CALLS = 200_000;
    /** The start of a toolkit call's line in a recording. */
    public static final String TOOLKIT = "toolkit: ";
    private static List<String> functionNames;

    private JniCalls() {}

    /** A block of code to record. */
    @FunctionalInterface
    public interface Block {
        void run() throws Throwable;
    }

    /**
     * Runs the block while recording this thread's JNI calls, and returns the recording. A
     * throwable that the block throws is thrown again, after the recording has stopped.
     */
    public static Recording record(Block block) {
        Recording r = run(block, true);
        if (r.thrown != null) {
            throw JniCalls.<RuntimeException>sneaky(r.thrown);
        }
        return r;
    }

    /**
     * As {@link #record}, for a block that is to throw: returns the recording with what it threw
     * ({@link Recording#thrown()}); fails when it returns normally.
     */
    public static Recording recordThrowing(Block block) {
        Recording r = run(block, true);
        if (r.thrown == null) {
            throw new AssertionError("the block returned normally");
        }
        return r;
    }

    /**
     * As {@link #record}, with the toolkit's calls in the timeline ({@code "toolkit: "} and the
     * journal's line). Clears the call journal, and leaves it off.
     */
    public static Recording recordWithToolkit(Block block) {
        Recording r = withToolkit(block);
        if (r.thrown != null) {
            throw JniCalls.<RuntimeException>sneaky(r.thrown);
        }
        return r;
    }

    /** As {@link #recordWithToolkit}, for a block that is to throw (see {@link #recordThrowing}). */
    public static Recording recordThrowingWithToolkit(Block block) {
        Recording r = withToolkit(block);
        if (r.thrown == null) {
            throw new AssertionError("the block returned normally");
        }
        return r;
    }

    private static Recording withToolkit(Block block) {
        ensureLoaded();
        Journal.setListener(toolkitListener());
        Journal.start();
        try {
            return run(block, true);
        } finally {
            Journal.stop();
            Journal.setListener(0);
        }
    }

    /**
     * As {@link #record}, but keeps only the counts (of each function and of references), not
     * the calls: for blocks that make millions of calls.
     */
    public static Recording count(Block block) {
        Recording r = run(block, false);
        if (r.thrown != null) {
            throw JniCalls.<RuntimeException>sneaky(r.thrown);
        }
        return r;
    }

    private static synchronized void ensureLoaded() {
        if (functionNames != null) {
            return;
        }
        String agent = System.getProperty(AGENT_PROPERTY);
        if (agent == null) {
            throw new IllegalStateException("System property " + AGENT_PROPERTY + " is not set");
        }
        // The agent is loaded already (-agentpath); this binds its natives to this class.
        System.load(agent);
        if (!ready()) {
            throw new IllegalStateException("The JNI call recorder is not active: run the JVM with -agentpath:" + agent);
        }
        functionNames = List.of(functionNames());
    }

    private static Recording run(Block block, boolean keepCalls) {
        ensureLoaded();
        // The peer table deletes the weak references of forgotten peers in batches, on the thread
        // whose removal fills one: emptied first, so that no earlier block's batch falls into
        // this one (a block forgets fewer than a batch). What the block forgets is deleted later.
        collectForgottenPeers();
        if (!start(keepCalls)) {
            throw new IllegalStateException("this thread records already, or too many threads record");
        }
        Throwable thrown = null;
        long handle;
        try {
            block.run();
        } catch (Throwable t) {
            thrown = t;
        } finally {
            handle = stop();
        }
        try {
            return new Recording(keepCalls ? Arrays.asList(calls(handle)) : List.of(), counts(handle),
                    references(handle), thrown);
        } finally {
            release(handle);
        }
    }

    private static void collectForgottenPeers() {
        try {
            Method collect = ManagedObjects.class.getDeclaredMethod("collectForgottenNative");
            collect.setAccessible(true);
            collect.invoke(null);
        } catch (ReflectiveOperationException e) {
            throw new IllegalStateException(e);
        }
    }

    @SuppressWarnings("unchecked")
    private static <T extends Throwable> T sneaky(Throwable t) throws T {
        throw (T) t;
    }

    /** What one block did through JNI. */
    public static final class Recording {
        private final List<String> calls;
        private final Map<String, Long> counts = new HashMap<>();
        private final long[] references;
        private final Throwable thrown;

        Recording(List<String> calls, long[] counts, long[] references, Throwable thrown) {
            this.calls = Collections.unmodifiableList(new ArrayList<>(calls));
            for (int i = 0; i < counts.length; i++) {
                if (counts[i] != 0) {
                    this.counts.put(functionNames.get(i), counts[i]);
                }
            }
            this.references = references;
            this.thrown = thrown;
            if (references[7] != 0) {
                throw new IllegalStateException("more than " + MAX_CALLS + " calls: use JniCalls.count");
            }
        }

        /** The calls, one line each, in the order in which they were made. */
        public List<String> calls() {
            return calls;
        }

        /** The toolkit's calls only (see {@link JniCalls#recordWithToolkit}), without the prefix. */
        public List<String> toolkitCalls() {
            List<String> result = new ArrayList<>();
            for (String c : calls) {
                if (c.startsWith(TOOLKIT)) {
                    result.add(c.substring(TOOLKIT.length()));
                }
            }
            return result;
        }

        /** The names of the functions called, in order. */
        public List<String> names() {
            List<String> names = new ArrayList<>(calls.size());
            for (String c : calls) {
                names.add(nameOf(c));
            }
            return names;
        }

        /** The calls of the named functions only, in order. */
        public List<String> callsOf(String... functions) {
            List<String> wanted = Arrays.asList(functions);
            List<String> result = new ArrayList<>();
            for (String c : calls) {
                if (wanted.contains(nameOf(c))) {
                    result.add(c);
                }
            }
            return result;
        }

        /** The calls of all functions but the named ones, in order. */
        public List<String> callsExcept(String... functions) {
            List<String> unwanted = Arrays.asList(functions);
            List<String> result = new ArrayList<>();
            for (String c : calls) {
                if (!unwanted.contains(nameOf(c))) {
                    result.add(c);
                }
            }
            return result;
        }

        /** How often the function was called (counted even by {@link JniCalls#count}). */
        public long count(String function) {
            return counts.getOrDefault(function, 0L);
        }

        /** The total number of calls. */
        public long total() {
            return counts.values().stream().mapToLong(Long::longValue).sum();
        }

        public long localReferencesCreated() {
            return references[0];
        }

        public long localReferencesDeleted() {
            return references[1];
        }

        /** The most local references held at one time (made minus freed, from the start). */
        public long localReferencesPeak() {
            return references[2];
        }

        public long globalReferencesCreated() {
            return references[3];
        }

        public long globalReferencesDeleted() {
            return references[4];
        }

        public long weakGlobalReferencesCreated() {
            return references[5];
        }

        public long weakGlobalReferencesDeleted() {
            return references[6];
        }

        /** What the block threw, or null. */
        public Throwable thrown() {
            return thrown;
        }

        @Override
        public String toString() {
            return String.join("\n", calls);
        }

        private static String nameOf(String call) {
            int end = 0;
            while (end < call.length() && Character.isLetterOrDigit(call.charAt(end))) {
                end++;
            }
            return call.substring(0, end);
        }
    }

    private static native boolean ready();

    private static native boolean start(boolean keepCalls);

    private static native long stop();

    private static native String[] calls(long recording);

    private static native long[] counts(long recording);

    private static native long[] references(long recording);

    private static native void release(long recording);

    private static native String[] functionNames();

    private static native long toolkitListener();
}
