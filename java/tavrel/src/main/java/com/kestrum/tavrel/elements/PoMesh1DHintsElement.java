package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the 1D-mesh hints (how the graphs of 1D meshes join their points).
 *
 * <p>See {@link com.kestrum.tavrel.elements the package} for its static methods, its life and
 * subclassing it.
 */
public abstract class PoMesh1DHintsElement extends SoReplacedElement {
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
    protected PoMesh1DHintsElement() {
        this(ElementTypes.ownership());
    }

    private PoMesh1DHintsElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoMesh1DHintsElement::initCustomClass);
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
     * Sets the 1D-mesh hints of the traversal: the top element of the class's stack, at the
     * state's depth, names the node and takes the geometry interpretation.
     *
     * @param state the traversal state
     * @param node the node that sets the value, or null
     * @param interpretation the geometry interpretation (the toolkit's value)
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, int interpretation) {
        ElementCalls.set(state, node, null, null, (s, n, v) -> setImpl(s, n, interpretation));
    }

    /**
     * The geometry interpretation of the traversal.
     *
     * @param state the traversal state
     * @return the value last set, 0 (as is) by default
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static int get(SoState state) {
        return ElementCalls.read(state, PoMesh1DHintsElement::getImpl);
    }

    /**
     * The default geometry interpretation.
     *
     * @return 0 (as is)
     */
    public static int getDefault() {
        return getDefaultImpl();
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
        callWith(state, "state", PoMesh1DHintsElement::initImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native int getClassStackIndexImpl();

    private static native void nativeDerivedClassInit();

    private static native int[] initCustomClass(long element, Object peer, boolean create, String typeName, int stackIndex,
            short key);

    private static native void initImpl(long element, long state);

    private static native void setImpl(long state, long node, int interpretation);

    private static native int getImpl(long state);

    private static native int getDefaultImpl();
}
