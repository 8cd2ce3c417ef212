package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the label hints (path, justification, a text and two flags).
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
 * CustomPoLabelHintsElement.&lt;operation&gt;." with the exception as its cause; the rest of that traversal no
 * longer calls Java.
 *
 * <p>An element made by a traversal state is disposed when the traversal ends. One made with
 * {@code new} belongs to its Java object: dispose it when done (it is {@link AutoCloseable}).
 */
public abstract class PoLabelHintsElement extends SoReplacedElement {
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
    protected PoLabelHintsElement() {
        this(ElementTypes.ownership());
    }

    private PoLabelHintsElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoLabelHintsElement::initCustomClass);
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
     * Sets the label hints of the traversal: the top element of the class's stack, at the
     * state's depth, names the node and takes the values (the text as a copy).
     *
     * @param state the traversal state
     * @param node the node that sets the values, or null
     * @param labelPath the direction the labels run (the toolkit's value)
     * @param justification the labels' justification (the toolkit's value)
     * @param text the text, or null for none
     * @param first the first flag
     * @param second the second flag
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override of a Java element class that the call
     *     runs throws (the state makes the element on first use and runs its {@code init}); the
     *     exception is the cause
     */
    public static void set(SoState state, SoNode node, int labelPath, int justification, String text, boolean first,
            boolean second) {
        ElementCalls.set(state, node, null, null,
                (s, n, v) -> setImpl(s, n, labelPath, justification, text, first, second));
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
        callWith(state, "state", PoLabelHintsElement::initImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native int getClassStackIndexImpl();

    private static native void nativeDerivedClassInit();

    private static native int[] initCustomClass(long element, Object peer, boolean create, String typeName, int stackIndex,
            short key);

    private static native void initImpl(long element, long state);

    private static native void setImpl(long state, long node, int labelPath, int justification, String text, boolean first, boolean second);
}
