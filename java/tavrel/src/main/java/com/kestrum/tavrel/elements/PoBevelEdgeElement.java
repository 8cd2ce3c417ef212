package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the bevel edge (whether the edges of the shapes after it are bevelled, from which angle, and the radius).
 *
 * <p>See {@link com.kestrum.tavrel.elements the package} for its static methods, its life and
 * subclassing it.
 */
public abstract class PoBevelEdgeElement extends SoReplacedElement {
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
    protected PoBevelEdgeElement() {
        this(ElementTypes.ownership());
    }

    private PoBevelEdgeElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoBevelEdgeElement::initCustomClass);
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
     * Sets the bevel edge of the traversal: the top element of the class's stack, at the state's
     * depth, names the node and takes the values.
     *
     * @param state the traversal state
     * @param node the node that sets the values, or null
     * @param on whether edges are bevelled
     * @param angle the angle above which edges are bevelled
     * @param radiusFlag how the radius counts (0 a length, 1 a percentage)
     * @param radius the bevel's radius
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, boolean on, float angle, int radiusFlag, float radius) {
        ElementCalls.set(state, node, null, null, (s, n, v) -> setImpl(s, n, on, angle, radiusFlag, radius));
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
        callWith(state, "state", PoBevelEdgeElement::initImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native int getClassStackIndexImpl();

    private static native void nativeDerivedClassInit();

    private static native int[] initCustomClass(long element, Object peer, boolean create, String typeName, int stackIndex,
            short key);

    private static native void initImpl(long element, long state);

    private static native void setImpl(long state, long node, boolean on, float angle, int radiusFlag, float radius);
}
