package com.kestrum.tavrel.elements;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the profile (a profile node).
 *
 * <p>The static methods set and read the element in a traversal state (the state a Java node or
 * element is given during an {@code apply}, see {@code SoAction.getState}).
 *
 * <p>Subclass it to take part in traversals: override {@link #push}, {@link #pop},
 * {@link #init}, {@link #matches}, {@link #copyMatchInfo} or {@link #captureThis}; the toolkit
 * calls the overrides on the elements that its traversal states make of the class, once the
 * class's type is enabled ({@code SoAction.enableElement(element.getTypeName(),
 * element.getStackIndex())}). {@code super} reaches the toolkit's behaviour; {@code push} and
 * {@code pop} have none. Each Java class gets a toolkit type named after its binary name, a stack
 * index (that of this class) and an element key, made by its first object; the toolkit makes
 * further objects with the constructor without arguments. An exception thrown by an override
 * that the toolkit called reaches the Java caller of {@code apply} as an
 * {@link IllegalArgumentException} "Exception raised during execution of
 * CustomPoProfileElement.&lt;operation&gt;." with the exception as its cause; the rest of that traversal no
 * longer calls Java.
 *
 * <p>An element made by a traversal state is disposed when the traversal ends. One made with
 * {@code new} belongs to its Java object: dispose it when done (it is {@link AutoCloseable}).
 */
public abstract class PoProfileElement extends SoReplacedElement {
    static {
        JarInitializer.init();
        nativeDerivedClassInit();
    }

    /**
     * A new element of the Java subclass, bound to its class's toolkit type.
     *
     * @throws IllegalArgumentException when a class of another class loader has a toolkit type of
     *     the same name
     */
    protected PoProfileElement() {
        this(ElementTypes.ownership());
    }

    private PoProfileElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoProfileElement::initCustomClass);
    }

    /**
     * The name of the toolkit type of the element class (the parent of every Java subclass's type).
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The stack index of the toolkit element class, shared by the Java subclasses.
     *
     * @return the index
     */
    public static int getClassStackIndex() {
        return getClassStackIndexImpl();
    }

    /**
     * Sets the profile (a profile node) of the traversal: the top element of the class's stack, at the state's depth,
     * names the node and keeps the object's address. The object is held until the traversal
     * ends.
     *
     * @param state the traversal state
     * @param node the node that sets the value, or null
     * @param profile the value, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static void set(SoState state, SoNode node, SoNode profile) {
        ElementCalls.set(state, node, profile, "profile", PoProfileElement::setImpl);
    }

    /**
     * The profile (a profile node) of the traversal.
     *
     * <p>The node comes back as its Java object or as a new view, which takes a reference on the
     * native node: it stays usable, and keeps the node alive, until it is disposed or collected.
     *
     * @param state the traversal state
     * @return the value last set, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static SoNode get(SoState state) {
        return SoNode.of(ElementCalls.read(state, PoProfileElement::getImpl));
    }

    /**
     * The default value.
     *
     * @return null: there is none
     */
    public static SoNode getDefault() {
        return SoNode.of(getDefaultImpl());
    }

    /**
     * The bounding box of the traversal's profile.
     *
     * @param state the traversal state
     * @return the box (empty without a profile)
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static SbBox2f getBBox(SoState state) {
        float[] box = new float[4];
        ElementCalls.read(state, s -> {
            getBBoxImpl(s, box);
            return null;
        });
        return new SbBox2f(box[0], box[1], box[2], box[3]);
    }

    /**
     * The number of points of the traversal's profile at the value.
     *
     * @param state the traversal state
     * @param value the value
     * @return the count, 0 without a profile
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static int getProfilePointCount(SoState state, float value) {
        int[] count = new int[1];
        ElementCalls.read(state, s -> getProfileImpl(s, value, count));
        return count[0];
    }

    /**
     * The points of the traversal's profile at the value, as x, y pairs (a copy).
     *
     * @param state the traversal state
     * @param value the value
     * @return the coordinates, or null without a profile
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static float[] getProfile(SoState state, float value) {
        FloatBuffer points = getDirectProfile(state, value);
        if (points == null) {
            return null;
        }
        float[] copy = new float[points.remaining()];
        points.get(copy);
        return copy;
    }

    /**
     * The points of the traversal's profile at the value, as x, y pairs, without a copy: the
     * buffer shows the points that the state's profile element keeps, which it replaces at the
     * next profile query on that element ({@code getProfile}, {@code getDirectProfile},
     * {@code getProfilePointCount}) and frees with the state when the traversal ends. Read it
     * before either: after that it shows freed memory (nothing can make it stop working). Use
     * {@link #getProfile} for points to keep.
     *
     * @param state the traversal state
     * @param value the value
     * @return the coordinates, or null without a profile
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static FloatBuffer getDirectProfile(SoState state, float value) {
        int[] count = new int[1];
        ByteBuffer bytes = ElementCalls.read(state, s -> getDirectProfileImpl(s, value, count));
        return bytes == null ? null : bytes.order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    /**
     * Gives the element its default value: the toolkit's behaviour of the element class.
     *
     * @param state the traversal state
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the element or the state has been disposed
     */
    @Override
    public void init(SoState state) {
        callWith(state, "state", PoProfileElement::initImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native int getClassStackIndexImpl();

    private static native void nativeDerivedClassInit();

    private static native int[] initCustomClass(long element, Object peer, boolean create, String typeName, int stackIndex,
            short key);

    private static native void initImpl(long element, long state);

    private static native void setImpl(long state, long node, long value);

    private static native long getImpl(long state);

    private static native long getDefaultImpl();

    private static native void getBBoxImpl(long state, float[] box);

    private static native long getProfileImpl(long state, float value, int[] count);

    private static native ByteBuffer getDirectProfileImpl(long state, float value, int[] count);
}
