package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the text attributes.
 *
 * <p>See {@link com.kestrum.tavrel.elements the package} for its static methods, its life and
 * subclassing it.
 */
public abstract class PoMiscTextAttrElement extends SoReplacedElement {
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
    protected PoMiscTextAttrElement() {
        this(ElementTypes.ownership());
    }

    private PoMiscTextAttrElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoMiscTextAttrElement::initCustomClass);
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
     * Sets the text attributes of the traversal (see the package).
     *
     * @param state the traversal state
     * @param node the node that sets the value, or null
     * @param textAttributes the value, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, PbMiscTextAttr textAttributes) {
        ElementCalls.set(state, node, textAttributes, "textAttributes", PoMiscTextAttrElement::setImpl);
    }

    /**
     * The text attributes of the traversal.
     *
     * <p>See the package for the object returned, and how long a view of it works.
     *
     * @param state the traversal state
     * @return the value last set, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static PbMiscTextAttr get(SoState state) {
        return ElementCalls.valueOf(PbMiscTextAttr.class, state, PoMiscTextAttrElement::getImpl);
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
        callWith(state, "state", PoMiscTextAttrElement::initImpl);
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
}
