package com.kestrum.tavrel.elements;

import com.kestrum.corvel.SbBox2f;
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
 * <p>See {@link com.kestrum.tavrel.elements the package} for its static methods, its life and
 * subclassing it.
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
     * Sets the profile (a profile node) of the traversal (see the package).
     *
     * @param state the traversal state
     * @param node the node that sets the value, or null
     * @param profile the value, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
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
