package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PoMesh;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.misc.callbacks.PoRebuildCB;
import com.kestrum.tavrel.testkit.Bridges;
import com.kestrum.tavrel.testkit.Nodes;
import com.kestrum.tavrel.testkit.Probes;
import com.kestrum.tavrel.testkit.TestLibrary;
import java.lang.reflect.Constructor;
import java.lang.reflect.Executable;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Proxy;
import java.nio.FloatBuffer;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.Random;
import java.util.Set;
import java.util.TreeMap;
import java.util.concurrent.Callable;
import java.util.concurrent.ExecutionException;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.FutureTask;

/**
 * A seeded run of hostile calls to the public API, made in a child JVM ({@link MisuseRuns}):
 * {@code Misuse <seed> <calls> <log file>}.
 *
 * <p>Each step constructs an object of a random class of the {@link Surface}, calls a random
 * public method of a random object (or a static one), disposes or drops an object, builds,
 * traverses and renders a scene that mixes every kind of node, raises events as the toolkit
 * does, enables hostile element types on the actions, rebuilds a graph node with listeners,
 * sweeps the views of an object past their owner, or runs two threads at once ({@link #lanes}).
 * Round robins over the classes without a successful call yet make every class reached
 * ({@link Coverage}). Arguments are hostile: null, empty and short arrays, negative, zero and
 * extreme counts and indices, NaN and infinities, disposed objects, objects of sibling classes,
 * views, hostile vectors. Some calls are handed to another Java thread and waited for.
 * Listeners and Java-extended nodes and elements ({@link HostileNode}, {@link HostileFilter},
 * {@link HostileElements}) make further calls from inside their callbacks, dispose the object
 * they are called for, their arguments or those of the call that caused them, call the element
 * classes with the state they are given, keep what they are given, return hostile values and
 * throw.
 *
 * <p>Every call may return or throw a Java exception. The run fails by dying (a crash, a
 * sanitizer report, a JNI warning, a hang), which the parent sees; with exit code 3 when a call
 * throws an {@link Error} that a Java caller cannot recover from (out of memory, a class that
 * cannot be initialised); with exit code 4 when an exception had no clear message
 * ({@link Coverage#check}). Each call is written to the {@link CallLog} before it is made; at
 * the end the child writes the classes and methods it reached ({@link Coverage#FILE}).
 *
 * <p>The test library's natives (raising probe and rebuild events, calling a node's virtual
 * operations) act as the toolkit does, so they get what the toolkit would give: live objects of
 * the right class, held by a reference for the duration of the call (as a traversal holds the
 * nodes it visits), and a cell of the probe's own mesh, valid when the call starts, for a single
 * event only (the test library raises a list of events without the checks the probe makes
 * between the events of a move).
 */
public final class Misuse {
    /** The run of this process; hooks of listeners and nodes reach it (see {@link #instance}). */
    static volatile Misuse current;
    /** The run of a lane thread ({@link #lanes}), which has objects of its own. */
    private static final ThreadLocal<Misuse> LANE = new ThreadLocal<>();
    /** The surface, found once per process. */
    private static volatile Surface sharedSurface;

    private static final int POOL_CAPACITY = 150;
    private static final int MAX_DEPTH = 3;
    private static final String[] STRINGS = {
        "", "name", "position", "f", "HostileNode", "HostileFilter", "PoMeshFilled", "SoGroup",
        "0 0 0", "0.5 0.5 0", "nan inf -inf", "1e39 -1e39 0", "1 2", "x y z", "\u00e9t\u00e9 \u6e29\u5ea6 \ud83d\ude00",
        "bad\ud800surrogate", "nul\0inside", "%s%n%x", "a".repeat(5000)
    };
    private static final float[] FLOATS = {
        0f, -0f, 1f, -1f, 0.5f, 2f, 10f, 1e-30f, 1e30f, Float.MAX_VALUE, -Float.MAX_VALUE, Float.MIN_VALUE,
        Float.NaN, Float.POSITIVE_INFINITY, Float.NEGATIVE_INFINITY
    };
    private static final int[] EXTREME_INTS = {Integer.MAX_VALUE, Integer.MIN_VALUE, -1, -2};

    private final Random rnd;
    private final long seed;
    private final int limit;
    private final CallLog log;
    private final Surface surface;
    private final List<Object> pool = new ArrayList<>();
    private final List<Integer> counts = new ArrayList<>(List.of(1, 3, 4, 8));
    /** Children added to groups, by native address, to keep the graphs acyclic. */
    private final Map<Long, List<Long>> children = new HashMap<>();
    private ExecutorService worker;
    /** A lane's run: its own objects and log, on its own thread, beside the other lane. */
    private final boolean lane;
    /** The logs of the lanes (one per lane thread), opened by the first lanes step. */
    private CallLog[] laneLogs;
    /** The calls in progress on this run (receiver and arguments), innermost last. */
    private final List<Object[]> inProgress = new ArrayList<>();
    /** Inside a test-library call of a node's operation, whose action lives on the library's stack. */
    private boolean testLibraryCall;
    /** Where the round robins over classes without a successful call stand. */
    private int constructCursor;
    private int staticCursor;
    private int reachCursor;
    private final Map<String, Integer> outcomes = new TreeMap<>();
    /** The object each object came from (the receiver of the call that returned it). */
    private final Map<Object, java.lang.ref.WeakReference<Object>> parents = new java.util.WeakHashMap<>();
    /** With -Dmisuse.stats=true: outcomes per method, printed at the end (to tune the arguments). */
    private static final boolean STATS = Boolean.getBoolean("misuse.stats");
    private final Map<String, Integer> detail = new TreeMap<>();
    private final String[] operations;
    private int calls;
    private int depth;
    private Throwable failure;

    private Misuse(long seed, int limit, CallLog log, boolean lane) {
        this.seed = seed;
        this.rnd = new Random(seed);
        this.limit = limit;
        this.log = log;
        this.lane = lane;
        if (sharedSurface == null) {
            sharedSurface = new Surface();
        }
        this.surface = sharedSurface;
        this.operations = Nodes.operationNames();
        Arrays.sort(operations);
        // Each seed starts its round robins elsewhere, so that short children share the classes.
        this.constructCursor = (int) Math.floorMod(seed * 7919, Math.max(1, surface.constructible.size()));
        this.staticCursor = (int) Math.floorMod(seed * 104729, Math.max(1, surface.withStatics.size()));
        this.reachCursor = (int) Math.floorMod(seed * 1299709, Math.max(1, surface.productClasses.size()));
    }

    /** The run that a callback on this thread belongs to: the lane's, else the process's. */
    static Misuse instance() {
        Misuse lane = LANE.get();
        return lane != null ? lane : current;
    }

    public static void main(String[] args) throws Exception {
        long seed = Long.parseLong(args[0]);
        int limit = Integer.parseInt(args[1]);
        TestLibrary.ensureLoaded();
        Misuse run = new Misuse(seed, limit, new CallLog(Path.of(args[2])), false);
        current = run;
        long start = System.nanoTime();
        int exit = run.run();
        System.out.println("misuse seed " + seed + ": " + run.calls + " calls, " + run.log.lines() + " log lines, "
                + (System.nanoTime() - start) / 1_000_000 + " ms");
        System.out.println("misuse outcomes: " + run.outcomes);
        run.detail.forEach((k, v) -> System.out.println("  " + k + ": " + v));
        Coverage.write(Path.of(Coverage.FILE));
        long reached = run.surface.productClasses.stream().filter(Coverage::reached).count();
        System.out.println("misuse reached " + reached + " of " + run.surface.productClasses.size()
                + " public classes, " + Coverage.methods() + " methods");
        System.out.println("misuse unclear exceptions: " + Coverage.unclear());
        if (exit == 0 && Coverage.unclear() > 0) {
            exit = 4;
        }
        System.out.println(exit == 0 ? "misuse finished" : exit == 4 ? "misuse FAILED: unclear exceptions"
                : "misuse FAILED: " + run.failure);
        System.out.flush();
        Runtime.getRuntime().halt(exit);
    }

    private int run() {
        log.write(Thread.currentThread().getName(), 0, "# seed " + seed + ", " + limit + " calls");
        if (rnd.nextBoolean()) {
            // The first use of the Java node and element classes, on two threads at once.
            lanes();
        }
        while (calls < limit && failure == null) {
            step(true);
        }
        if (failure != null) {
            failure.printStackTrace(System.out);
            return 3;
        }
        return 0;
    }

    // --- steps ------------------------------------------------------------------------------

    /** One step; a top-level one may run on another thread and may collect garbage. */
    private void step(boolean topLevel) {
        if (rnd.nextInt(100) < 15 && reachStep(topLevel)) {
            return;
        }
        int r = rnd.nextInt(1000);
        if (r < 170) {
            onSomeThread(topLevel, this::construct);
        } else if (r < 570) {
            Object receiver = rnd.nextInt(3) == 0 ? pickUnreached() : pickAny(Object.class, 90);
            if (receiver != null) {
                onSomeThread(topLevel, () -> callRandomMethod(receiver));
            }
        } else if (r < 630) {
            if (!lane) {
                onSomeThread(topLevel, this::callStatic);
            }
        } else if (r < 680) {
            NativeObject o = pickAny(NativeObject.class, 95);
            if (o != null) {
                onSomeThread(topLevel, () -> call(o, "dispose", o::dispose));
            }
        } else if (r < 760) {
            scene();
        } else if (r < 840) {
            toolkitEvent();
        } else if (r < 860) {
            mutateMesh(null);
        } else if (r < 890) {
            orphan(topLevel);
        } else if (r < 900) {
            drop();
        } else if (r < 920) {
            if (!lane) {
                enableElements();
            }
        } else if (r < 950) {
            graphRebuild();
        } else if (r < 965) {
            viewSweep(topLevel);
        } else if (r < 985) {
            callElementStatics(null);
        } else if (r < 990) {
            if (topLevel && !lane) {
                lanes();
            }
        } else if (topLevel && !lane && rnd.nextInt(10) == 0) {
            collectGarbage();
        }
    }

    private void collectGarbage() {
        log.write(thread(), depth, "# System.gc()");
        System.gc();
    }

    /**
     * An object that a call returned (a cell, a field, a view of a mesh or node) outliving the
     * object it came from: the parent is disposed, or dropped and collected, then the child is
     * called.
     */
    private void orphan(boolean topLevel) {
        List<Object> children = new ArrayList<>();
        for (Object o : pool) {
            Object parent = parentOf(o);
            if (parent instanceof NativeObject && !((NativeObject) parent).isDisposed()) {
                children.add(o);
            }
        }
        if (children.isEmpty()) {
            return;
        }
        Object child = children.get(rnd.nextInt(children.size()));
        NativeObject parent = (NativeObject) parentOf(child);
        if (topLevel && rnd.nextInt(4) == 0) {
            pool.remove(parent);
            log.write(thread(), depth, "# drop " + log.render(parent));
            parent = null;
            collectGarbage();
        } else {
            NativeObject p = parent;
            call(p, "dispose", p::dispose);
        }
        int n = 1 + rnd.nextInt(3);
        for (int i = 0; i < n; i++) {
            callRandomMethod(child);
        }
    }

    private Object parentOf(Object o) {
        java.lang.ref.WeakReference<Object> parent = parents.get(o);
        return parent == null ? null : parent.get();
    }

    /** Runs on this thread, or hands to the worker or to a new thread and waits. */
    private void onSomeThread(boolean topLevel, Runnable body) {
        int r = rnd.nextInt(100);
        if (lane) {
            body.run();
            return;
        }
        try {
            if (topLevel && r < 8) {
                if (worker == null) {
                    worker = Executors.newSingleThreadExecutor(t -> new Thread(t, "worker"));
                }
                worker.submit(body).get();
            } else if (r < 12) {
                FutureTask<Void> task = new FutureTask<>(body, null);
                Thread t = new Thread(task, "fresh");
                t.start();
                t.join();
                task.get();
            } else {
                body.run();
            }
        } catch (ExecutionException e) {
            throw new IllegalStateException("the run itself failed", e.getCause());
        } catch (InterruptedException e) {
            throw new IllegalStateException(e);
        }
    }

    /**
     * A constructor: half the time of the next class in a round robin over the classes that have
     * had no successful call yet (all of them once each has had one), with arguments well formed
     * three times in four, so that a short run reaches every class.
     */
    private void construct() {
        Constructor<?> c;
        boolean wellFormed = false;
        if (rnd.nextBoolean()) {
            Class<?> k = nextInRoundRobin(surface.constructible, true);
            List<Constructor<?>> ctors = surface.constructorsByClass.get(k);
            c = ctors.get(rnd.nextInt(ctors.size()));
            wellFormed = rnd.nextInt(4) != 0;
        } else {
            c = surface.constructors.get(rnd.nextInt(surface.constructors.size()));
        }
        invoke(null, c, arguments(c, null, wellFormed));
    }

    /** A static method, half the time of the next class without a successful call. */
    private void callStatic() {
        Method m;
        boolean wellFormed = false;
        if (rnd.nextBoolean()) {
            Class<?> k = nextInRoundRobin(surface.withStatics, false);
            List<Method> ms = surface.staticsByClass.get(k);
            m = ms.get(rnd.nextInt(ms.size()));
            wellFormed = rnd.nextInt(4) != 0;
        } else {
            m = surface.staticMethods.get(rnd.nextInt(surface.staticMethods.size()));
        }
        invoke(null, m, arguments(m, null, wellFormed));
    }

    /**
     * A call for the next public class (in a round robin that starts where the seed says) that
     * has had no successful call yet: a constructor, a static method (one without arguments half
     * the time: an enumeration's {@code values()}), or a method of an object of it in the pool; its
     * arguments well formed. False when every class has had one, or when the class has none of
     * these (an abstract class or interface, reached through its subclasses and implementations).
     */
    private boolean reachStep(boolean topLevel) {
        List<Class<?>> all = surface.productClasses;
        for (int i = 0; i < all.size(); i++) {
            Class<?> k = all.get((reachCursor + i) % all.size());
            if (Coverage.reached(k)) {
                continue;
            }
            reachCursor = (reachCursor + i + 1) % all.size();
            List<Constructor<?>> ctors = surface.constructorsByClass.get(k);
            List<Method> statics = surface.staticsByClass.get(k);
            Object receiver = pickLive(k);
            if (ctors != null && (statics == null || rnd.nextBoolean())) {
                Constructor<?> c = ctors.get(rnd.nextInt(ctors.size()));
                onSomeThread(topLevel, () -> invoke(null, c, arguments(c, null, true)));
            } else if (statics != null) {
                List<Method> plain = new ArrayList<>();
                for (Method m : statics) {
                    if (m.getParameterCount() == 0) {
                        plain.add(m);
                    }
                }
                List<Method> from = !plain.isEmpty() && rnd.nextBoolean() ? plain : statics;
                Method m = from.get(rnd.nextInt(from.size()));
                onSomeThread(topLevel, () -> invoke(null, m, arguments(m, null, true)));
            } else if (receiver != null) {
                List<Method> methods = surface.methodsOf(receiver.getClass());
                if (methods.isEmpty()) {
                    continue;
                }
                Method m = methods.get(rnd.nextInt(methods.size()));
                onSomeThread(topLevel, () -> invoke(receiver, m, arguments(m, receiver, true)));
            } else {
                continue;
            }
            return true;
        }
        return false;
    }

    private Class<?> nextInRoundRobin(List<Class<?>> classes, boolean constructing) {
        int cursor = constructing ? constructCursor : staticCursor;
        int n = classes.size();
        int chosen = cursor % n;
        for (int i = 0; i < n; i++) {
            int at = (cursor + i) % n;
            if (!Coverage.reached(classes.get(at)) && Coverage.isProduct(classes.get(at))) {
                chosen = at;
                break;
            }
        }
        if (constructing) {
            constructCursor = chosen + 1;
        } else {
            staticCursor = chosen + 1;
        }
        return classes.get(chosen);
    }

    /** A pool object of a class (or superclass) that has had no successful call yet; null if none. */
    private Object pickUnreached() {
        List<Object> fitting = new ArrayList<>();
        for (Object o : pool) {
            if (o instanceof NativeObject && ((NativeObject) o).isDisposed()) {
                continue;
            }
            for (Class<?> c = o.getClass(); c != null; c = c.getSuperclass()) {
                if (Coverage.isProduct(c) && !Coverage.reached(c)) {
                    fitting.add(o);
                    break;
                }
            }
        }
        return fitting.isEmpty() ? pickAny(Object.class, 90) : fitting.get(rnd.nextInt(fitting.size()));
    }

    private void callRandomMethod(Object receiver) {
        List<Method> methods = surface.methodsOf(receiver.getClass());
        if (methods.isEmpty()) {
            return;
        }
        Method m = methods.get(rnd.nextInt(methods.size()));
        if (receiver instanceof PbMesh && hasArrayParameter(m) && rnd.nextBoolean()) {
            // A caller sizes its arrays from the mesh's counts.
            PbMesh mesh = (PbMesh) receiver;
            Object nodes = call(mesh, "getNumNodes", () -> countSeen(mesh.getNumNodes()));
            Object cells = call(mesh, "getNumCells", () -> countSeen(mesh.getNumCells()));
            lastNodes = nodes instanceof Integer ? (Integer) nodes : -1;
            lastCells = cells instanceof Integer ? (Integer) cells : -1;
        }
        invoke(receiver, m, arguments(m, receiver));
    }

    private static boolean hasArrayParameter(Method m) {
        return Arrays.stream(m.getParameterTypes()).anyMatch(Class::isArray);
    }

    /** Calls a geometry setter of a mesh (related to a callback, or any), cells already handed out. */
    private void mutateMesh(PbMesh mesh) {
        PbMesh target = mesh != null ? mesh : pickAny(PbMesh.class, 95);
        if (target == null) {
            return;
        }
        List<Method> setters = new ArrayList<>();
        for (Method m : surface.methodsOf(target.getClass())) {
            if (m.getName().equals("setGeometry") || m.getName().equals("setCoordinates")) {
                setters.add(m);
            }
        }
        if (!setters.isEmpty()) {
            Method m = setters.get(rnd.nextInt(setters.size()));
            invoke(target, m, arguments(m, target));
        }
    }

    /** Forgets an object without disposing of it: the collector and the cleaner get it. */
    private void drop() {
        if (!pool.isEmpty()) {
            Object o = pool.remove(rnd.nextInt(pool.size()));
            log.write(thread(), depth, "# drop " + log.render(o));
        }
    }

    /**
     * A small scene traversed: a group holding some of a cell filter, representations with
     * meshes, a probe with listeners, a Java node and other groups; then an action applied to
     * it, or a node's operation called directly.
     */
    private void scene() {
        SoGroup group = pickLive(SoGroup.class);
        if (group == null || rnd.nextInt(4) == 0) {
            group = (SoGroup) call(null, "new SoGroup", SoGroup::new);
            if (group == null) {
                return;
            }
        }
        SoGroup root = group;
        int n = rnd.nextInt(4) + (rnd.nextInt(4) == 0 ? 4 : 0);
        for (int i = 0; i < n; i++) {
            SoNode child = sceneChild(0);
            if (child != null) {
                addChild(root, child);
            }
        }
        if (rnd.nextInt(3) == 0) {
            render(root);
            return;
        }
        SoAction action = pickLive(SoAction.class);
        if (action == null || rnd.nextInt(3) == 0) {
            Constructor<?> c = randomConstructorOf(SoAction.class);
            action = (SoAction) invoke(null, c, new Object[0]);
            if (action == null) {
                return;
            }
        }
        SoAction a = action;
        SoNode target = rnd.nextInt(4) == 0 ? pickAny(SoNode.class, 90) : root;
        if (target == null) {
            return;
        }
        if (rnd.nextInt(3) == 0) {
            // A node's operation called directly, as a Java node's override calls super.
            List<Method> ops = new ArrayList<>();
            for (Method m : surface.methodsOf(target.getClass())) {
                if (m.getParameterCount() == 1 && m.getParameterTypes()[0].isInstance(a)) {
                    ops.add(m);
                }
            }
            if (!ops.isEmpty()) {
                invoke(target, ops.get(rnd.nextInt(ops.size())), new Object[] {a});
                return;
            }
        }
        onSomeThread(depth == 0, () -> call(a, "apply", () -> a.apply(target), target));
    }

    /**
     * A node for a scene: a Java filter or node, a probe, any node of the pool, a representation
     * with a mesh, a mesh node, a property node, a graph node, or a separator holding a few of
     * these (everything mixed in one scene).
     */
    private SoNode sceneChild(int level) {
        switch (rnd.nextInt(11)) {
            case 6:
                return madeNode(com.kestrum.tavrel.nodes.PoMeshProperty.class);
            case 7: {
                // A property node: a node of the nodes package that is neither a Java node nor a mesh node.
                List<Constructor<?>> fitting = new ArrayList<>();
                for (Constructor<?> c : surface.constructors) {
                    Class<?> k = c.getDeclaringClass();
                    if (k.getPackageName().equals("com.kestrum.tavrel.nodes") && SoNode.class.isAssignableFrom(k)
                            && !com.kestrum.tavrel.nodes.PoMeshProperty.class.isAssignableFrom(k)) {
                        fitting.add(c);
                    }
                }
                if (fitting.isEmpty()) {
                    return null;
                }
                Constructor<?> c = fitting.get(rnd.nextInt(fitting.size()));
                Object made = invoke(null, c, arguments(c, null, true));
                return made instanceof SoNode ? (SoNode) made : null;
            }
            case 8:
                return madeNode(PoBase.class);
            case 9: {
                if (level >= 2) {
                    return null;
                }
                SoGroup sep = (SoGroup) call(null, "new SoSeparator", SoSeparator::new);
                if (sep != null) {
                    int k = 1 + rnd.nextInt(3);
                    for (int i = 0; i < k; i++) {
                        SoNode child = sceneChild(level + 1);
                        if (child != null) {
                            addChild(sep, child);
                        }
                    }
                }
                return sep;
            }
            case 0:
                return liveOrNew(HostileFilter.class);
            case 1:
                return liveOrNew(HostileNode.class);
            case 2: {
                PoMeshProbePoint probe = liveOrNew(PoMeshProbePoint.class);
                if (probe != null) {
                    prepareProbe(probe);
                }
                return probe;
            }
            case 3:
                return pickAny(SoNode.class, 90);
            default: {
                PoMesh rep = pickLive(PoMesh.class);
                if (rep == null || rnd.nextInt(3) == 0) {
                    Constructor<?> c = randomConstructorOf(PoMesh.class);
                    rep = (PoMesh) invoke(null, c, new Object[0]);
                }
                if (rep != null) {
                    PoMesh r = rep;
                    PbMesh mesh = pickAny(PbMesh.class, 90);
                    call(r, "setMesh", () -> r.setMesh(mesh), mesh);
                }
                return rep;
            }
        }
    }

    /** A live node of the type from the pool, or a new one made with well-formed arguments. */
    private SoNode madeNode(Class<? extends SoNode> type) {
        SoNode o = pickLive(type);
        if (o != null && rnd.nextBoolean()) {
            return o;
        }
        Constructor<?> c = randomConstructorOf(type, true);
        Object made = c == null ? null : invoke(null, c, arguments(c, null, true));
        return made instanceof SoNode ? (SoNode) made : null;
    }

    /** A mesh, a position inside it (a node of it) or anywhere, and listeners. */
    private void prepareProbe(PoMeshProbePoint probe) {
        PbMesh mesh = pickAny(PbMesh.class, 90);
        call(probe, "setMesh", () -> probe.setMesh(mesh), mesh);
        SbVec3f point = null;
        if (mesh != null && !mesh.isDisposed() && rnd.nextBoolean()) {
            int node = rnd.nextInt(8);
            point = (SbVec3f) call(mesh, "getNodeCoord", () -> mesh.getNodeCoord(node), node);
        }
        float x = point != null ? point.getX() : nextFloat();
        float y = point != null ? point.getY() : nextFloat();
        float z = point != null ? point.getZ() : nextFloat();
        call(probe, "setPosition", () -> probe.setPosition(x, y, z), x, y, z);
        for (int event = 0; event < 4; event++) {
            if (rnd.nextInt(3) == 0) {
                continue;
            }
            PoProbeCB cb = rnd.nextInt(4) == 0 ? pickAny(PoProbeCB.class, 80) : null;
            if (cb == null) {
                PoProbeCB.Listener listener = probeListener();
                cb = (PoProbeCB) call(null, "new PoProbeCB", () -> new PoProbeCB(listener), listener);
            }
            PoProbeCB c = cb;
            Object userData = userData();
            switch (event) {
                case 0:
                    call(probe, "setMotionCallback", () -> probe.setMotionCallback(c, userData), c, userData);
                    break;
                case 1:
                    call(probe, "setChangeCellCallback", () -> probe.setChangeCellCallback(c, userData), c, userData);
                    break;
                case 2:
                    call(probe, "setEnterMeshCallback", () -> probe.setEnterMeshCallback(c, userData), c, userData);
                    break;
                default:
                    call(probe, "setLeaveMeshCallback", () -> probe.setLeaveMeshCallback(c, userData), c, userData);
                    break;
            }
        }
    }

    /** Adds a child unless that would close a cycle (traversing a cycle recurses without end). */
    private void addChild(SoGroup group, SoNode child) {
        long g = group.getNativeResourceHandleInternal();
        long c = child.getNativeResourceHandleInternal();
        if (g != 0 && c != 0 && reaches(c, g, new java.util.HashSet<>())) {
            log.write(thread(), depth, "# not adding " + log.render(child) + " under " + log.render(group) + ": cycle");
            return;
        }
        Object done = call(group, "addChild", () -> {
            group.addChild(child);
            return Boolean.TRUE;
        }, child);
        if (done != null) {
            children.computeIfAbsent(g, k -> new ArrayList<>()).add(c);
        }
    }

    private boolean reaches(long from, long to, Set<Long> seen) {
        if (from == to) {
            return true;
        }
        if (!seen.add(from)) {
            return false;
        }
        for (long c : children.getOrDefault(from, List.of())) {
            if (reaches(c, to, seen)) {
                return true;
            }
        }
        return false;
    }

    /**
     * Events as the toolkit raises them: a probe's events on this or a native thread, a probe
     * moved into a cell, a rebuild event, or a node's virtual operation called by the toolkit.
     * Each holds a reference on the node for the duration, as a traversal would.
     */
    private void toolkitEvent() {
        switch (rnd.nextInt(4)) {
            case 0:
            case 1: {
                PoMeshProbePoint probe = pickLive(PoMeshProbePoint.class);
                if (probe == null) {
                    return;
                }
                long cell = cellOfProbeMesh(probe);
                long h = probe.getNativeResourceHandleInternal();
                // A listener may free the cell: only a single event carries it (the probe's own
                // moves check the cell before each event).
                int[] events = new int[rnd.nextBoolean() ? 1 : 1 + rnd.nextInt(4)];
                long[] cells = new long[events.length];
                for (int i = 0; i < events.length; i++) {
                    events[i] = rnd.nextInt(4);
                    cells[i] = events.length == 1 ? cell : 0;
                }
                // A lane raises no events on native threads: those reach the process's run.
                int kind = lane ? 2 * rnd.nextInt(2) : rnd.nextInt(3);
                String what = kind == 0 ? "Probes.raise" : kind == 1 ? "Probes.raiseOnNativeThread" : "Probes.moveTo";
                float x = nextFloat();
                call(probe, what, () -> {
                    Nodes.ref(h);
                    try {
                        if (kind == 0) {
                            Probes.raise(h, events, cells);
                        } else if (kind == 1) {
                            Probes.raiseOnNativeThread(h, events, cells);
                        } else {
                            Probes.moveTo(h, x, 0, 0, cells[0], cells[0] == 0 ? -1 : rnd.nextInt(3));
                        }
                    } finally {
                        Nodes.unref(h);
                    }
                    return null;
                }, events, cells);
                return;
            }
            case 2: {
                PoRebuildCB cb = pickLive(PoRebuildCB.class);
                // The toolkit raises rebuild events for graph nodes only.
                SoBaseKit kit = pickLive(PoBase.class);
                if (cb == null) {
                    PoRebuildCB.Listener listener = rebuildListener();
                    call(null, "new PoRebuildCB", () -> new PoRebuildCB(listener), listener);
                    return;
                }
                if (kit == null) {
                    return;
                }
                long bridge = cb.getNativeResourceHandleInternal();
                long node = kit.getNativeResourceHandleInternal();
                call(cb, "Bridges.raiseRebuild", () -> {
                    Nodes.ref(node);
                    try {
                        Bridges.raiseRebuild(bridge, node);
                    } finally {
                        Nodes.unref(node);
                    }
                    return null;
                }, kit);
                return;
            }
            default: {
                SoNode node = pickLive(SoNode.class);
                if (node == null) {
                    return;
                }
                String op = operations[rnd.nextInt(operations.length)];
                if (op.equals("acceptCell") && !(node instanceof com.kestrum.tavrel.nodes.PoCellFilter)) {
                    return;
                }
                long h = node.getNativeResourceHandleInternal();
                call(node, "Nodes.invoke", () -> {
                    Nodes.ref(h);
                    boolean outer = testLibraryCall;
                    testLibraryCall = true;
                    try {
                        Nodes.invoke(h, op);
                    } finally {
                        testLibraryCall = outer;
                        Nodes.unref(h);
                    }
                    return null;
                }, op);
            }
        }
    }

    /**
     * The address of a cell of the probe's mesh, just obtained (0 for none), as the probe itself
     * would find it.
     */
    private long cellOfProbeMesh(PoMeshProbePoint probe) {
        if (rnd.nextInt(3) == 0) {
            return 0;
        }
        PbMesh mesh = (PbMesh) call(probe, "getMesh", probe::getMesh);
        if (mesh == null || mesh.isDisposed()) {
            return 0;
        }
        int index = rnd.nextInt(4);
        PbCell cell = (PbCell) call(mesh, "getCell", () -> mesh.getCell(index), index);
        return cell == null ? 0 : cell.getNativeResourceHandleInternal();
    }


    // --- elements, graphs, views, threads -------------------------------------------------------

    /**
     * Makes the traversal states make a hostile Java element for one element class from now on,
     * or the toolkit's element again.
     */
    private void enableElements() {
        Class<? extends SoElement> hostile = HostileElements.ALL.get(rnd.nextInt(HostileElements.ALL.size()));
        if (rnd.nextInt(3) != 0) {
            Constructor<?> c = randomConstructorOf(hostile);
            Object made = c == null ? null : invoke(null, c, new Object[0]);
            if (!(made instanceof SoElement)) {
                return;
            }
            SoElement e = (SoElement) made;
            Object type = call(e, "getTypeName", e::getTypeName);
            Object index = call(e, "getStackIndex", e::getStackIndex);
            if (type instanceof String && index instanceof Integer) {
                call(null, "SoAction.enableElement", () -> SoAction.enableElement((String) type, (Integer) index),
                        type, index);
            }
            if (rnd.nextBoolean()) {
                call(e, "dispose", e::dispose);
            }
        } else {
            Class<?> toolkit = hostile.getSuperclass();
            try {
                Method name = toolkit.getMethod("getClassTypeName");
                Method index = toolkit.getMethod("getClassStackIndex");
                Object type = invoke(null, name, new Object[0]);
                Object i = invoke(null, index, new Object[0]);
                if (type instanceof String && i instanceof Integer) {
                    call(null, "SoAction.enableElement", () -> SoAction.enableElement((String) type, (Integer) i),
                            type, i);
                }
            } catch (NoSuchMethodException e) {
                throw new IllegalStateException(toolkit + " has no getClassTypeName or getClassStackIndex", e);
            }
        }
    }

    /**
     * Static methods of the element classes (set, get, the profile's queries): with the state a
     * callback was given (or one kept from an earlier traversal, finished), the other arguments
     * well formed or hostile.
     */
    private void callElementStatics(SoState given) {
        SoState state = given != null ? given : pickAny(SoState.class, 50);
        int n = 1 + rnd.nextInt(3);
        for (int i = 0; i < n && calls < limit; i++) {
            List<Method> fitting = new ArrayList<>();
            for (Method m : surface.staticMethods) {
                if (m.getDeclaringClass().getPackageName().equals("com.kestrum.tavrel.elements")
                        && Arrays.asList(m.getParameterTypes()).contains(SoState.class)) {
                    fitting.add(m);
                }
            }
            if (fitting.isEmpty()) {
                return;
            }
            Method m = fitting.get(rnd.nextInt(fitting.size()));
            Object[] args = arguments(m, null, rnd.nextBoolean());
            Class<?>[] types = m.getParameterTypes();
            for (int k = 0; k < types.length; k++) {
                if (types[k] == SoState.class && rnd.nextInt(10) != 0) {
                    args[k] = state;
                }
            }
            invoke(null, m, args);
        }
    }

    /**
     * A graph node with rebuild listeners and callback objects (which may dispose the node, the
     * action, the domain being set, ...), then rebuilt: directly, by a change, or by a traversal.
     */
    private void graphRebuild() {
        PoBase node = pickLive(PoBase.class);
        if (node == null || rnd.nextInt(3) == 0) {
            Constructor<?> c = randomConstructorOf(PoBase.class, true);
            Object made = c == null ? null : invoke(null, c, arguments(c, null, true));
            node = made instanceof PoBase ? (PoBase) made : null;
        }
        if (node == null) {
            return;
        }
        for (Method m : surface.methodsOf(node.getClass())) {
            if (m.getName().startsWith("add") && m.getName().contains("Rebuild") && rnd.nextInt(3) != 0) {
                invoke(node, m, arguments(m, node, true));
            }
        }
        PoBase n = node;
        switch (rnd.nextInt(5)) {
            case 0:
                call(n, "rebuild", n::rebuild);
                break;
            case 1:
                call(n, "touchKit", n::touchKit);
                break;
            case 2: {
                PbDomain d = pickAny(PbDomain.class, 90);
                call(n, "setDomain", () -> n.setDomain(d), d);
                break;
            }
            default: {
                call(n, "setUpdateMethod", () -> n.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION),
                        PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
                call(n, "touchKit", n::touchKit);
                SoGroup root = (SoGroup) call(null, "new SoSeparator", SoSeparator::new);
                if (root != null) {
                    addChild(root, n);
                    render(root);
                }
                break;
            }
        }
    }

    /**
     * Views kept past their owners: every public getter of a live object that returns an object
     * of the library is called; the owner is disposed, or dropped and collected; new objects of
     * the same classes are made so that freed memory is reused; then every method of each view is
     * called, and each view is given back as an argument to the methods and constructors that
     * take its class (set, setMesh, constructors, ...).
     *
     * <p>Direct buffers are read at once, while their owner lives: reading one after its owner,
     * set or list is gone is the caller's documented obligation (docs/java-guide.md, "Views"),
     * not a misuse the library must survive.
     */
    private void viewSweep(boolean topLevel) {
        NativeObject owner = null;
        for (int tries = 0; tries < 3 && owner == null; tries++) {
            NativeObject o = rnd.nextBoolean() ? pickLive(NativeObject.class) : null;
            if (o == null) {
                Constructor<?> c = randomConstructorOf(NativeObject.class, true);
                Object made = c == null ? null : invoke(null, c, arguments(c, null, true));
                o = made instanceof NativeObject ? (NativeObject) made : null;
            }
            if (o != null && !o.isDisposed() && !getters(o.getClass()).isEmpty()) {
                owner = o;
            }
        }
        if (owner == null) {
            return;
        }
        List<Object> views = new ArrayList<>();
        for (Method g : getters(owner.getClass())) {
            Object v = invoke(owner, g, arguments(g, owner, true));
            if (v instanceof NativeObject && v != owner) {
                views.add(v);
            } else if (v instanceof Object[]) {
                for (Object e : (Object[]) v) {
                    if (e instanceof NativeObject) {
                        views.add(e);
                    }
                }
            }
        }
        if (views.isEmpty()) {
            return;
        }
        Class<?> kind = owner.getClass();
        if (topLevel && !lane && rnd.nextBoolean()) {
            pool.remove(owner);
            log.write(thread(), depth, "# drop " + log.render(owner));
            owner = null;
            collectGarbage();
        } else {
            NativeObject o = owner;
            call(o, "dispose", o::dispose);
        }
        List<Class<?>> kinds = new ArrayList<>(List.of(kind));
        for (Object v : views) {
            kinds.add(v.getClass());
        }
        for (Class<?> k : kinds) {
            List<Constructor<?>> ctors = surface.constructorsByClass.get(k);
            if (ctors != null && calls < limit) {
                Constructor<?> c = ctors.get(rnd.nextInt(ctors.size()));
                invoke(null, c, arguments(c, null, true));
            }
        }
        for (Object v : views) {
            for (Method m : surface.methodsOf(v.getClass())) {
                if (calls >= limit) {
                    return;
                }
                if (!m.getName().equals("dispose") && !m.getName().equals("close")) {
                    invoke(v, m, arguments(m, v));
                }
            }
            List<Executable> takers = surface.acceptorsOf(v.getClass());
            for (int i = 0; i < 3 && !takers.isEmpty() && calls < limit; i++) {
                giveBack(v, takers.get(rnd.nextInt(takers.size())));
            }
        }
    }

    /** Calls an executable that takes the view's class, with the view as that argument. */
    private void giveBack(Object view, Executable e) {
        Object receiver = null;
        if (e instanceof Method && !java.lang.reflect.Modifier.isStatic(e.getModifiers())) {
            receiver = pickLive(e.getDeclaringClass());
            if (receiver == null) {
                return;
            }
        }
        Object[] args = arguments(e, receiver, true);
        Class<?>[] types = e.getParameterTypes();
        for (int k = 0; k < types.length; k++) {
            if (types[k] != Object.class && types[k].isInstance(view)) {
                args[k] = view;
                break;
            }
        }
        invoke(receiver, e, args);
    }

    /**
     * The public getters of a class that return objects of the library or direct buffers (or
     * arrays of them); the buffers are read at once ({@link #takeIn}).
     */
    private List<Method> getters(Class<?> type) {
        List<Method> out = new ArrayList<>();
        for (Method m : surface.methodsOf(type)) {
            Class<?> r = m.getReturnType().isArray() ? m.getReturnType().getComponentType() : m.getReturnType();
            if ((NativeObject.class.isAssignableFrom(r) || java.nio.Buffer.class.isAssignableFrom(r))
                    && m.getParameterCount() <= 2 && !m.getName().equals("copy")) {
                out.add(m);
            }
        }
        return out;
    }

    /**
     * Renders a scene to the picture (and sometimes writes it to a file), or applies another
     * action to it.
     */
    private void render(SoNode root) {
        SoAction action = rnd.nextInt(3) == 0 ? pickLive(SoAction.class) : null;
        if (action == null) {
            action = (SoAction) call(null, "new SoGLRenderAction", SoGLRenderAction::new);
        }
        if (action == null) {
            return;
        }
        SoAction a = action;
        call(a, "apply", () -> a.apply(root), root);
        if (a instanceof SoGLRenderAction && !a.isDisposed()) {
            SoGLRenderAction gl = (SoGLRenderAction) a;
            if (rnd.nextBoolean()) {
                call(gl, "toSvg", gl::toSvg);
            } else {
                Path file = Path.of("scene.svg");
                call(gl, "writeSvg", () -> {
                    gl.writeSvg(file);
                    return null;
                }, file);
            }
        }
    }

    /**
     * Two threads at once, each with a run of its own (its own objects, seed and log), so that no
     * object is used by both: first each makes an object of the same hostile element class and
     * the Java node and filter (at the start of a child, the first use of those classes, whose
     * registration races), renders a scene, then makes a few dozen steps.
     */
    private void lanes() {
        if (lane || depth > 0 || calls >= limit) {
            return;
        }
        long laneSeed = rnd.nextLong();
        int laneCalls = 20 + rnd.nextInt(60);
        int firstUse = rnd.nextInt(HostileElements.ALL.size());
        if (laneLogs == null) {
            laneLogs = new CallLog[] {new CallLog(Path.of("calls-lane-0.log")), new CallLog(Path.of("calls-lane-1.log"))};
        }
        log.write(thread(), depth, "# lanes: seeds " + laneSeed + " and " + (laneSeed + 1) + ", " + laneCalls
                + " calls each (calls-lane-0.log, calls-lane-1.log)");
        Misuse[] runs = new Misuse[2];
        Thread[] threads = new Thread[2];
        java.util.concurrent.CountDownLatch start = new java.util.concurrent.CountDownLatch(1);
        for (int i = 0; i < 2; i++) {
            Misuse run = new Misuse(laneSeed + i, laneCalls, laneLogs[i], true);
            runs[i] = run;
            threads[i] = new Thread(() -> {
                LANE.set(run);
                try {
                    start.await();
                    run.runLane(firstUse);
                } catch (InterruptedException e) {
                    Thread.currentThread().interrupt();
                } finally {
                    LANE.remove();
                }
            }, "lane-" + i);
            threads[i].start();
        }
        start.countDown();
        for (Thread t : threads) {
            try {
                t.join();
            } catch (InterruptedException e) {
                throw new IllegalStateException(e);
            }
        }
        for (Misuse run : runs) {
            calls += run.calls;
            if (failure == null && run.failure != null) {
                failure = run.failure;
            }
        }
    }

    private void runLane(int firstUse) {
        log.write(thread(), 0, "# lane seed " + seed + ", " + limit + " calls");
        Class<?> element = HostileElements.ALL.get(firstUse);
        for (Class<?> c : List.of(element, HostileNode.class, HostileFilter.class)) {
            Constructor<?> k = randomConstructorOf(c);
            if (k != null) {
                invoke(null, k, new Object[0]);
            }
        }
        scene();
        while (calls < limit && failure == null) {
            step(true);
        }
    }

    // --- callbacks --------------------------------------------------------------------------

    private PoProbeCB.Listener probeListener() {
        return (PoProbeCB.Listener) listener(PoProbeCB.Listener.class);
    }

    private PoRebuildCB.Listener rebuildListener() {
        return (PoRebuildCB.Listener) listener(PoRebuildCB.Listener.class);
    }

    /**
     * An implementation of a product interface (the listeners, and any that lands later): each
     * call is a callback of the run, which may dispose its arguments, make further calls and
     * throw; a method with a result returns a hostile value or the neutral one.
     */
    private static Object listener(Class<?> iface) {
        return Proxy.newProxyInstance(iface.getClassLoader(), new Class<?>[] {iface}, (proxy, method, args) -> {
            if (method.getDeclaringClass() == Object.class) {
                switch (method.getName()) {
                    case "equals":
                        return proxy == args[0];
                    case "hashCode":
                        return System.identityHashCode(proxy);
                    default:
                        return "listener " + iface.getSimpleName();
                }
            }
            Object[] a = args == null ? new Object[0] : args;
            Misuse m = instance();
            Object result = null;
            if (m != null) {
                Object self = a.length > 0 ? a[0] : null;
                Decision d = m.callback(iface.getSimpleName() + "." + method.getName(), self, a, true);
                if (d == Decision.HOSTILE_VALUE && method.getReturnType() != void.class
                        && !method.getReturnType().isPrimitive()) {
                    result = m.hostileValue(method.getReturnType(), self);
                }
            }
            Coverage.listenerReturned(iface, method.getName());
            return result != null || !method.getReturnType().isPrimitive() ? result : neutral(method.getReturnType());
        });
    }

    private static Object neutral(Class<?> primitive) {
        if (primitive == boolean.class) {
            return false;
        }
        if (primitive == void.class) {
            return null;
        }
        if (primitive == float.class) {
            return 0f;
        }
        if (primitive == double.class) {
            return 0d;
        }
        if (primitive == long.class) {
            return 0L;
        }
        if (primitive == char.class) {
            return (char) 0;
        }
        if (primitive == short.class) {
            return (short) 0;
        }
        if (primitive == byte.class) {
            return (byte) 0;
        }
        return 0;
    }

    /** What an override does after the misuse run has had its way. */
    private enum Decision { SUPER, HOSTILE_VALUE }

    /** Called first by each override of {@link HostileNode} and {@link HostileFilter}: true to call super. */
    static boolean enter(Object self, String op, Object... args) {
        Misuse m = instance();
        return m == null || m.callback(op, self, args, false) == Decision.SUPER;
    }

    /** An override with a result: the toolkit's (super), or a hostile one. */
    static <T> T value(Object self, String op, Class<T> type, java.util.function.Supplier<T> superCall,
            Object... args) {
        Misuse m = instance();
        if (m == null || m.callback(op, self, args, false) == Decision.SUPER) {
            return superCall.get();
        }
        return m.hostileValue(type, self);
    }

    /**
     * A callback: logs it, then may dispose the object it is called for or one of its
     * arguments, change the geometry of a mesh involved, make further calls (on the related
     * objects first), and decide what the override does; or throw.
     */
    private Decision callback(String op, Object self, Object[] args, boolean listener) {
        int line = log.lines() + 1;
        List<Object> related = new ArrayList<>();
        if (self != null) {
            related.add(self);
        }
        SoState state = null;
        SoAction action = null;
        for (Object a : args) {
            if (a instanceof NativeObject) {
                related.add(a);
                // Kept for later, whatever it is: nodes, meshes, cells, but also the traversal's
                // state, elements and action, which stop working when the traversal ends. Not
                // the actions and inputs that the test library makes for one call of a node's
                // operation (Nodes.invoke, on its stack), which the toolkit never hands out.
                if (!(testLibraryCall && (a instanceof SoAction || a instanceof com.kestrum.corvel.SoInput))) {
                    adopt(a, line);
                }
            }
            if (a instanceof SoState) {
                state = (SoState) a;
            } else if (a instanceof SoAction) {
                action = (SoAction) a;
            }
        }
        if (self instanceof NativeObject) {
            adopt(self, line);
        }
        // The receiver and arguments of the call that caused this callback (an apply's action
        // and node, a setDomain's domain): the callback may dispose them too.
        if (!inProgress.isEmpty()) {
            for (Object o : inProgress.get(inProgress.size() - 1)) {
                if (o instanceof NativeObject && !related.contains(o)) {
                    related.add(o);
                }
            }
        }
        log.write(thread(), depth, "~ " + log.render(self) + "." + op + "(" + renderAll(args) + ")");
        boolean quiet = op.equals("acceptCell") || op.equals("getRenderEngineMode");
        if (depth >= MAX_DEPTH || calls >= limit || failure != null) {
            return Decision.SUPER;
        }
        depth++;
        try {
            int r = rnd.nextInt(100);
            int scale = quiet ? 5 : 1;
            if (r < 10 / scale && self instanceof NativeObject) {
                NativeObject o = (NativeObject) self;
                call(o, "dispose", o::dispose);
            } else if (r < 18 / scale) {
                Object o = related.get(rnd.nextInt(related.size()));
                if (o instanceof NativeObject) {
                    call(o, "dispose", ((NativeObject) o)::dispose);
                }
            }
            if ((state != null || action != null) && rnd.nextInt(100) < 30 / scale) {
                SoState s = state;
                if (s == null && !action.isDisposed()) {
                    SoAction a = action;
                    Object got = call(a, "getState", a::getState);
                    s = got instanceof SoState ? (SoState) got : null;
                }
                if (s != null) {
                    callElementStatics(s);
                }
            }
            if (self instanceof PoMesh && rnd.nextInt(100) < 15 / scale) {
                PoMesh rep = (PoMesh) self;
                PbMesh mesh = (PbMesh) call(rep, "getMesh", rep::getMesh);
                mutateMesh(mesh);
            }
            if (rnd.nextInt(100) < 35 / scale) {
                int steps = 1 + rnd.nextInt(2);
                for (int i = 0; i < steps; i++) {
                    if (rnd.nextBoolean()) {
                        Object receiver = related.get(rnd.nextInt(related.size()));
                        onSomeThread(false, () -> callRandomMethod(receiver));
                    } else {
                        step(false);
                    }
                }
            }
        } finally {
            depth--;
        }
        int r = rnd.nextInt(100);
        if (r < (listener ? 6 : 8)) {
            log.write(thread(), depth, "# " + op + " throws");
            throw new MisuseException("thrown by " + op);
        }
        return r < 85 ? Decision.SUPER : Decision.HOSTILE_VALUE;
    }

    @SuppressWarnings("unchecked")
    private <T> T hostileValue(Class<T> type, Object self) {
        if (type == Boolean.class) {
            return (T) Boolean.valueOf(rnd.nextBoolean());
        }
        if (type == Integer.class) {
            return (T) Integer.valueOf(nextInt(new Ctx(false)));
        }
        if (type == String.class) {
            return (T) nextString();
        }
        if (type.isEnum()) {
            Object[] constants = type.getEnumConstants();
            return rnd.nextInt(4) == 0 ? null : (T) constants[rnd.nextInt(constants.length)];
        }
        if (rnd.nextInt(5) == 0 && type.isInstance(self)) {
            return (T) self;
        }
        return rnd.nextInt(4) == 0 ? null : pickAny(type, 50);
    }

    // --- calls --------------------------------------------------------------------------------

    /** A reflective call: logged, made, its result taken in. Returns the result, or null if it threw. */
    private Object invoke(Object receiver, Executable e, Object[] args) {
        String name = e instanceof Constructor ? "new " + CallLog.simpleName(e.getDeclaringClass())
                : (receiver == null ? CallLog.simpleName(e.getDeclaringClass()) : log.render(receiver)) + "." + e.getName();
        if (e.getName().equals("addChild") && receiver instanceof SoGroup && args.length == 1
                && args[0] instanceof SoNode) {
            addChild((SoGroup) receiver, (SoNode) args[0]);
            return null;
        }
        return perform(receiver, name, args, () -> {
            try {
                return e instanceof Constructor ? ((Constructor<?>) e).newInstance(args)
                        : ((Method) e).invoke(receiver, args);
            } catch (InvocationTargetException ex) {
                throw ex.getCause();
            }
        }, outcomeKey(e), e);
    }

    /** A direct call, logged and made like a reflective one. */
    private Object call(Object receiver, String method, Callable<?> body, Object... args) {
        String name = receiver == null ? method : log.render(receiver) + "." + method;
        return perform(receiver, name, args, () -> body.call(), method, null);
    }

    private Object call(Object receiver, String method, Runnable body, Object... args) {
        return call(receiver, method, () -> {
            body.run();
            return Boolean.TRUE;
        }, args);
    }

    @FunctionalInterface
    private interface Body {
        Object run() throws Throwable;
    }

    /**
     * Logs and makes a call; records what it reached (a call that returned) and checks what it
     * threw ({@link Coverage#check}). The call's receiver and arguments are known to the callbacks
     * it causes meanwhile, which may dispose them.
     */
    private Object perform(Object receiver, String name, Object[] args, Body body, String outcomeKey,
            Executable executable) {
        int line = log.write(thread(), depth, name + "(" + renderAll(args) + ")");
        calls++;
        Object[] frame = new Object[args.length + 1];
        frame[0] = receiver;
        System.arraycopy(args, 0, frame, 1, args.length);
        inProgress.add(frame);
        try {
            Object result = body.run();
            outcome(outcomeKey, "returned");
            if (executable != null) {
                Coverage.returned(receiver, executable);
            } else {
                Coverage.returned(receiver, outcomeKey);
            }
            takeIn(result, line, receiver != null ? receiver : firstObject(args));
            return result;
        } catch (VirtualMachineError | LinkageError e) {
            if (e instanceof UnsatisfiedLinkError) {
                outcome(outcomeKey, "UnsatisfiedLinkError");
                return null;
            }
            // Out of memory, a class that cannot be initialised: no caller recovers from these.
            if (failure == null) {
                failure = e;
            }
            return null;
        } catch (Throwable t) {
            outcome(outcomeKey, t.getClass().getSimpleName());
            if (Coverage.check(name + " (log line " + line + ", " + thread() + ")", t, executable)) {
                log.write(thread(), depth, "# unclear exception: " + t);
            }
            return null;
        } finally {
            inProgress.remove(inProgress.size() - 1);
        }
    }

    /** The first object argument of a static call: what a returned view is taken from. */
    private static Object firstObject(Object[] args) {
        for (Object a : args) {
            if (a instanceof NativeObject) {
                return a;
            }
        }
        return null;
    }

    private static String outcomeKey(Executable e) {
        return e instanceof Constructor ? "new " + e.getDeclaringClass().getSimpleName() + "/" + e.getParameterCount() : e.getName();
    }

    private void outcome(String key, String kind) {
        outcomes.merge(kind, 1, Integer::sum);
        if (STATS) {
            detail.merge(key + " " + kind, 1, Integer::sum);
        }
    }

    /** Results: objects join the pool; buffers are read (and data sets written) at once; counts are noted. */
    private void takeIn(Object result, int line, Object receiver) {
        if (result instanceof NativeObject || result != null && !(result instanceof Enum)
                && (Coverage.isProduct(result.getClass()) || surface.classes.contains(result.getClass()))) {
            adopt(result, line);
            if (receiver != null && receiver != result && !parents.containsKey(result)) {
                parents.put(result, new java.lang.ref.WeakReference<>(receiver));
            }
        } else if (result instanceof FloatBuffer) {
            touch((FloatBuffer) result);
        } else if (result instanceof FloatBuffer[]) {
            for (FloatBuffer b : (FloatBuffer[]) result) {
                touch(b);
            }
        } else if (result instanceof Integer) {
            countSeen((Integer) result);
        } else if (result instanceof int[]) {
            for (int c : (int[]) result) {
                countSeen(c);
            }
        }
    }

    private float touch(FloatBuffer buffer) {
        float sum = 0;
        if (buffer == null) {
            return sum;
        }
        for (int i = 0; i < buffer.capacity(); i++) {
            sum += buffer.get(i);
        }
        if (buffer.capacity() > 0 && !buffer.isReadOnly() && rnd.nextInt(4) == 0) {
            buffer.put(rnd.nextInt(buffer.capacity()), nextFloat());
        }
        return sum;
    }

    private int countSeen(int c) {
        if (c >= 0 && c <= 64) {
            counts.add(c);
            if (counts.size() > 16) {
                counts.remove(0);
            }
        }
        return c;
    }

    // --- the pool -------------------------------------------------------------------------

    private void adopt(Object o, int line) {
        log.name(o, line);
        for (Object p : pool) {
            if (p == o) {
                return;
            }
        }
        pool.add(o);
        while (pool.size() > POOL_CAPACITY) {
            // Disposed objects go first; otherwise one is dropped without disposal.
            int victim = -1;
            for (int i = 0; i < pool.size(); i++) {
                if (pool.get(i) instanceof NativeObject && ((NativeObject) pool.get(i)).isDisposed()) {
                    victim = i;
                    break;
                }
            }
            pool.remove(victim >= 0 ? victim : rnd.nextInt(pool.size()));
        }
    }

    /** A pool object of the type; live ones preferred (liveWeight percent); null if none. */
    private <T> T pickAny(Class<T> type, int liveWeight) {
        List<T> live = new ArrayList<>();
        List<T> all = new ArrayList<>();
        for (Object o : pool) {
            if (type.isInstance(o)) {
                all.add(type.cast(o));
                if (!(o instanceof NativeObject) || !((NativeObject) o).isDisposed()) {
                    live.add(type.cast(o));
                }
            }
        }
        List<T> from = !live.isEmpty() && rnd.nextInt(100) < liveWeight ? live : all;
        return from.isEmpty() ? null : from.get(rnd.nextInt(from.size()));
    }

    private <T> T pickLive(Class<T> type) {
        List<T> live = new ArrayList<>();
        for (Object o : pool) {
            if (type.isInstance(o) && !(o instanceof NativeObject && ((NativeObject) o).isDisposed())) {
                live.add(type.cast(o));
            }
        }
        return live.isEmpty() ? null : live.get(rnd.nextInt(live.size()));
    }

    private <T extends NativeObject> T liveOrNew(Class<T> type) {
        T o = pickLive(type);
        if (o != null && rnd.nextInt(3) != 0) {
            return o;
        }
        Constructor<?> c = randomConstructorOf(type);
        return c == null ? o : type.cast(invoke(null, c, arguments(c, null)));
    }

    private Constructor<?> randomConstructorOf(Class<?> type) {
        return randomConstructorOf(type, false);
    }

    /** A constructor of a class of the type: without arguments, or any. */
    private Constructor<?> randomConstructorOf(Class<?> type, boolean anyArguments) {
        List<Constructor<?>> fitting = new ArrayList<>();
        for (Constructor<?> c : surface.constructors) {
            if (type.isAssignableFrom(c.getDeclaringClass()) && (anyArguments || c.getParameterCount() == 0)) {
                fitting.add(c);
            }
        }
        return fitting.isEmpty() ? null : fitting.get(rnd.nextInt(fitting.size()));
    }

    // --- arguments ----------------------------------------------------------------------------

    /**
     * What the arguments of one call have in common. Half the calls are well formed: counts are
     * small and positive, arrays are as long as the counts before them (or the receiving mesh's
     * counts) say, cell types are node counts and node indices are in range, so that the calls
     * reach deep into the toolkit. The other half are hostile throughout.
     */
    private final class Ctx {
        final boolean wellFormed;
        Ctx(boolean wellFormed) {
            this.wellFormed = wellFormed;
        }

        /** How float arrays follow the counts: 0 the first count, 1 their product, 2 one count each. */
        final int lengthRule = rnd.nextInt(3);
        final List<Integer> ints = new ArrayList<>();
        final List<Float> floats = new ArrayList<>();
        final List<Integer> sizes = new ArrayList<>();
        /** Node and cell counts of the receiving mesh, when the caller asked it for them. */
        int receiverNodes = -1;
        int receiverCells = -1;
        int floatArrays;
        int intArrays;
        int intArraysInCall;
        int cellTypesSum = -1;
        /** The public int constants of the receiving class (array lengths it publishes). */
        final List<Integer> constants = new ArrayList<>();
    }

    /** Node and cell counts of the last mesh a call was about to be made on (see callRandomMethod). */
    private int lastNodes = -1;
    private int lastCells = -1;

    private Object[] arguments(Executable e, Object receiver) {
        return arguments(e, receiver, false);
    }

    /** The arguments of a call; all well formed when asked, else half the time. */
    private Object[] arguments(Executable e, Object receiver, boolean wellFormed) {
        Ctx ctx = new Ctx(wellFormed || rnd.nextBoolean());
        if (receiver instanceof PbMesh) {
            ctx.receiverNodes = lastNodes;
            ctx.receiverCells = lastCells;
        }
        lastNodes = -1;
        lastCells = -1;
        if (receiver != null) {
            for (java.lang.reflect.Field f : receiver.getClass().getFields()) {
                int m = f.getModifiers();
                if (f.getType() == int.class && java.lang.reflect.Modifier.isStatic(m)
                        && java.lang.reflect.Modifier.isFinal(m)) {
                    try {
                        ctx.constants.add(f.getInt(null));
                    } catch (IllegalAccessException ex) {
                        throw new IllegalStateException(ex);
                    }
                }
            }
            ctx.sizes.addAll(ctx.constants);
        }
        Class<?>[] types = e.getParameterTypes();
        for (Class<?> t : types) {
            if (t == int[].class) {
                ctx.intArraysInCall++;
            }
        }
        Object[] args = new Object[types.length];
        for (int i = 0; i < types.length; i++) {
            args[i] = argument(types[i], ctx, receiver);
        }
        return args;
    }

    private Object argument(Class<?> t, Ctx ctx, Object receiver) {
        if (t == int.class) {
            int v = ctx.wellFormed && rnd.nextInt(8) != 0 ? 1 + rnd.nextInt(6) : nextInt(ctx);
            ctx.ints.add(v);
            return v;
        }
        if (t == float.class) {
            return ctx.wellFormed ? rnd.nextInt(41) / 4f - 5f : nextFloat(ctx);
        }
        if (t == boolean.class) {
            return rnd.nextBoolean();
        }
        if (t == short.class) {
            return (short) (rnd.nextBoolean() ? rnd.nextInt(8) : EXTREME_INTS[rnd.nextInt(EXTREME_INTS.length)]);
        }
        if (t == String.class) {
            return ctx.wellFormed ? STRINGS[1 + rnd.nextInt(3)] : nextString();
        }
        if (t == Object.class) {
            return userData();
        }
        if (t.isArray()) {
            return ctx.wellFormed ? wellFormedArray(t.getComponentType(), ctx) : array(t.getComponentType(), ctx);
        }
        if (t == SbVec3f.class || t == SbVec2f.class || t == SbColor.class) {
            return !ctx.wellFormed && rnd.nextInt(8) == 0 ? null : vector(t, ctx);
        }
        if (t.isEnum()) {
            Object[] constants = t.getEnumConstants();
            return !ctx.wellFormed && rnd.nextInt(8) == 0 ? null : constants[rnd.nextInt(constants.length)];
        }
        if (t.isInterface() && Coverage.isProduct(t)) {
            return rnd.nextInt(6) == 0 ? null : listener(t);
        }
        if (t == Path.class) {
            // A file of the child's folder, one in a folder that does not exist, the folder itself.
            String[] paths = {"scene.svg", "missing/folder/scene.svg", ".", "scene.svg"};
            return !ctx.wellFormed && rnd.nextInt(6) == 0 ? null : Path.of(paths[rnd.nextInt(ctx.wellFormed ? 1 : 4)]);
        }
        if (t == java.util.function.IntSupplier.class) {
            int v = nextInt(ctx);
            return rnd.nextInt(4) == 0 ? null : (java.util.function.IntSupplier) () -> v;
        }
        if (NativeObject.class.isAssignableFrom(t)) {
            if (rnd.nextInt(ctx.wellFormed ? 30 : 10) == 0) {
                return null;
            }
            if (t.isInstance(receiver) && rnd.nextInt(6) == 0) {
                return receiver;
            }
            return pickAny(t, ctx.wellFormed ? 97 : 85);
        }
        return null;
    }

    /**
     * A vector or colour: one in twenty hostile (a subclass whose own field "array" hides the
     * vector's, see {@link HostileVectors}).
     */
    private Object vector(Class<?> t, Ctx ctx) {
        float x = t == SbColor.class ? nextFloat() : coordinate(ctx);
        float y = t == SbColor.class ? nextFloat() : coordinate(ctx);
        float z = t == SbColor.class ? nextFloat() : coordinate(ctx);
        boolean hostile = rnd.nextInt(20) == 0;
        int kind = rnd.nextInt(4);
        if (t == SbVec2f.class) {
            return hostile ? new HostileVectors.Vec2(x, y, kind) : new SbVec2f(x, y);
        }
        if (t == SbColor.class) {
            return hostile ? new HostileVectors.Color(x, y, z, kind) : new SbColor(x, y, z);
        }
        if (hostile) {
            return kind == 3 ? new HostileVectors.Vec3Ints(x, y, z) : new HostileVectors.Vec3(x, y, z, kind);
        }
        return new SbVec3f(x, y, z);
    }

    private float coordinate(Ctx ctx) {
        return ctx.wellFormed ? rnd.nextInt(41) / 8f - 1f : nextFloat(ctx);
    }

    /** An array that fits the counts of the call or of the receiving mesh. */
    private Object wellFormedArray(Class<?> component, Ctx ctx) {
        int first = ctx.ints.isEmpty() ? 4 : Math.max(0, ctx.ints.get(0));
        int last = ctx.ints.isEmpty() ? 4 : Math.max(0, ctx.ints.get(ctx.ints.size() - 1));
        int nodes = ctx.receiverNodes >= 0 ? ctx.receiverNodes : first;
        if (component == float.class) {
            int length;
            if (rnd.nextInt(4) == 0) {
                // Outputs: a value, a point, a box, or a length the receiving class publishes.
                List<Integer> fixed = new ArrayList<>(List.of(1, 3, 4, 6));
                fixed.addAll(ctx.constants);
                length = fixed.get(rnd.nextInt(fixed.size()));
            } else if (ctx.receiverNodes >= 0) {
                length = rnd.nextInt(3) == 0 && ctx.receiverCells >= 0 ? ctx.receiverCells
                        : rnd.nextInt(8) == 0 ? 3 : ctx.receiverNodes;
            } else if (ctx.lengthRule == 0 || ctx.ints.isEmpty()) {
                length = ctx.ints.isEmpty() ? 3 : first;
            } else if (ctx.lengthRule == 1) {
                long p = 1;
                for (int v : ctx.ints) {
                    p *= Math.max(0, v);
                }
                length = clampLength(p);
            } else {
                int i = Math.min(ctx.floatArrays, ctx.ints.size() - 1);
                length = Math.max(0, ctx.ints.get(i));
            }
            ctx.floatArrays++;
            float[] a = new float[clampLength(length)];
            for (int i = 0; i < a.length; i++) {
                a[i] = rnd.nextInt(41) / 8f - 1f;
            }
            return a;
        }
        if (component == int.class) {
            int[] a;
            if (ctx.intArraysInCall == 2 && ctx.intArrays == 0) {
                // The node counts of the cells (cell types), as many as the last count.
                a = new int[clampLength(last)];
                boolean solid = rnd.nextBoolean();
                int sum = 0;
                for (int i = 0; i < a.length; i++) {
                    a[i] = solid ? new int[] {4, 5, 6, 8}[rnd.nextInt(4)] : 3 + rnd.nextInt(2);
                    sum += a[i];
                }
                ctx.cellTypesSum = sum;
            } else {
                // Node indices: of the cells listed by the cell types, or of cells of 1 to 8 nodes.
                int length = ctx.cellTypesSum >= 0 ? ctx.cellTypesSum
                        : last * new int[] {1, 3, 4, 4, 6, 8}[rnd.nextInt(6)];
                a = new int[clampLength(length)];
                for (int i = 0; i < a.length; i++) {
                    a[i] = nodes > 0 ? rnd.nextInt(nodes) : 0;
                }
            }
            ctx.intArrays++;
            return a;
        }
        int length = ctx.receiverNodes >= 0 ? ctx.receiverNodes : last;
        if (component == String.class) {
            String[] a = new String[clampLength(length)];
            for (int i = 0; i < a.length; i++) {
                a[i] = STRINGS[rnd.nextInt(4)];
            }
            return a;
        }
        if (component == SbVec3f.class || component == SbVec2f.class || component == SbColor.class) {
            Object[] a = (Object[]) java.lang.reflect.Array.newInstance(component, clampLength(length));
            for (int i = 0; i < a.length; i++) {
                a[i] = vector(component, ctx);
            }
            return a;
        }
        return java.lang.reflect.Array.newInstance(component, clampLength(length));
    }

    /** A hostile array: null, empty, short, of extreme values, with null elements. */
    private Object array(Class<?> component, Ctx ctx) {
        if (rnd.nextInt(12) == 0) {
            return null;
        }
        int length = arrayLength(ctx);
        if (component == float.class) {
            float[] a = new float[length];
            boolean hostile = rnd.nextInt(6) == 0;
            for (int i = 0; i < length; i++) {
                a[i] = hostile ? nextFloat() : rnd.nextInt(21) / 2f - 2f;
            }
            return a;
        }
        if (component == int.class) {
            int[] a = new int[length];
            int mode = rnd.nextInt(5);
            int bound = ctx.ints.isEmpty() || ctx.ints.get(0) <= 0 ? 4 : Math.min(ctx.ints.get(0), 1 << 16);
            long sum = 0;
            for (int i = 0; i < length; i++) {
                switch (mode) {
                    case 0:
                    case 1:
                        a[i] = rnd.nextInt(bound);
                        break;
                    case 2:
                        a[i] = 3 + rnd.nextInt(2);
                        break;
                    case 3:
                        a[i] = new int[] {4, 5, 6, 8}[rnd.nextInt(4)];
                        break;
                    default:
                        a[i] = rnd.nextInt(3) == 0 ? EXTREME_INTS[rnd.nextInt(EXTREME_INTS.length)] : rnd.nextInt(bound + 2);
                        break;
                }
                sum += a[i];
            }
            if (mode == 2 || mode == 3) {
                ctx.sizes.add((int) sum);
            }
            return a;
        }
        if (component == String.class) {
            String[] a = new String[length];
            for (int i = 0; i < length; i++) {
                a[i] = rnd.nextInt(10) == 0 ? null : STRINGS[rnd.nextInt(4)];
            }
            if (length > 0 && rnd.nextInt(4) == 0) {
                a[rnd.nextInt(length)] = nextString();
            }
            return a;
        }
        if (component == SbVec3f.class || component == SbVec2f.class || component == SbColor.class) {
            Object[] a = (Object[]) java.lang.reflect.Array.newInstance(component, length);
            for (int i = 0; i < length; i++) {
                if (rnd.nextInt(20) != 0) {
                    a[i] = vector(component, ctx);
                }
            }
            return a;
        }
        return java.lang.reflect.Array.newInstance(component, length);
    }

    /** Empty, short, or sized after the counts of this call or of recent results. */
    private int arrayLength(Ctx ctx) {
        int r = rnd.nextInt(100);
        if (r < 10) {
            return 0;
        }
        if (r < 20) {
            return 1 + rnd.nextInt(3);
        }
        if (r < 30 && !ctx.sizes.isEmpty()) {
            return clampLength(ctx.sizes.get(rnd.nextInt(ctx.sizes.size())));
        }
        if (r < 70 && !ctx.ints.isEmpty()) {
            // As many as the product of some counts of this call, times 1 to 4 (cells of 3 or 4
            // nodes), sometimes one short.
            long n = 1;
            for (int v : ctx.ints) {
                if (v > 0 && rnd.nextInt(3) != 0) {
                    n *= v;
                }
            }
            if (rnd.nextBoolean()) {
                n = ctx.ints.get(rnd.nextInt(ctx.ints.size()));
            }
            n *= new int[] {1, 1, 1, 2, 3, 4}[rnd.nextInt(6)];
            if (rnd.nextInt(8) == 0) {
                n--;
            }
            return clampLength(n);
        }
        return clampLength(counts.get(rnd.nextInt(counts.size())) * (1 + rnd.nextInt(3)));
    }

    private static int clampLength(long n) {
        return (int) Math.max(0, Math.min(n, 1 << 18));
    }

    /** Small counts and indices mostly; negative ones, recent counts, and the extremes. */
    private int nextInt(Ctx ctx) {
        int r = rnd.nextInt(100);
        if (r < 45) {
            return rnd.nextInt(9);
        }
        if (r < 60) {
            return counts.get(rnd.nextInt(counts.size()));
        }
        if (r < 68) {
            return -1 - rnd.nextInt(3);
        }
        if (r < 74 && !ctx.ints.isEmpty()) {
            int base = ctx.ints.get(rnd.nextInt(ctx.ints.size()));
            return base > 0 && base <= 64 ? Math.min(64, base * (1 + rnd.nextInt(4))) : base;
        }
        if (r < 80) {
            return new int[] {16, 27, 33, 64}[rnd.nextInt(4)];
        }
        if (r < 90) {
            return rnd.nextBoolean() ? Integer.MAX_VALUE : Integer.MIN_VALUE;
        }
        return rnd.nextInt(130) - 65;
    }

    /**
     * A hostile float of a call: one in six times one the call already has (equal ends, a span of
     * zero far from the origin), else any.
     */
    private float nextFloat(Ctx ctx) {
        if (!ctx.floats.isEmpty() && rnd.nextInt(6) == 0) {
            return ctx.floats.get(rnd.nextInt(ctx.floats.size()));
        }
        float f = nextFloat();
        ctx.floats.add(f);
        return f;
    }

    private float nextFloat() {
        return rnd.nextInt(3) == 0 ? FLOATS[rnd.nextInt(FLOATS.length)] : rnd.nextInt(41) / 4f - 5f;
    }

    private String nextString() {
        return rnd.nextInt(10) == 0 ? null : STRINGS[rnd.nextInt(STRINGS.length)];
    }

    private Object userData() {
        switch (rnd.nextInt(4)) {
            case 0:
                return null;
            case 1:
                return nextString();
            default:
                return pickAny(Object.class, 70);
        }
    }

    private String renderAll(Object[] args) {
        StringBuilder b = new StringBuilder();
        for (int i = 0; i < args.length; i++) {
            b.append(i == 0 ? "" : ", ").append(log.render(args[i]));
        }
        return b.toString();
    }

    private static String thread() {
        return Thread.currentThread().getName();
    }

    /** What a misbehaving callback throws. */
    static final class MisuseException extends RuntimeException {
        private static final long serialVersionUID = 1L;

        MisuseException(String message) {
            super(message);
        }
    }
}
