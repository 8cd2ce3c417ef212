package com.kestrum.corvel.elements;

import com.kestrum.corvel.misc.Arguments;
import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.misc.Traversals;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * An element of a traversal state: the current value of one kind of attribute. The state keeps
 * a stack of elements per kind and calls their operations as the traversal goes: {@link #init}
 * on a new bottom element, {@link #push} on an element put above the previous top, {@link #pop}
 * on the element that becomes the top again, {@link #matches}, {@link #copyMatchInfo} and
 * {@link #captureThis} for caches.
 *
 * <p>An element that the state made lives as long as the state: its Java object (a view, or the
 * object of a Java element class) is disposed when the traversal's {@code apply} returns, and
 * its methods then throw {@link IllegalStateException}. An element made in Java and not handed
 * to a state belongs to its Java object, which frees it when disposed.
 *
 * <p>The operations below run the toolkit's own behaviour of the element. A Java class that
 * extends an element class overrides them; its {@code super} calls reach the toolkit's
 * behaviour, never the Java override again.
 */
public class SoElement extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.elements.SoElement",
                h -> Traversals.own(new SoElement(h, new AtomicBoolean(false))));
    }

    private final AtomicBoolean owns;
    /** Set on the calling thread while {@link #copyMatchInfo} has the toolkit make a copy. */
    private static final ThreadLocal<Boolean> COPYING = new ThreadLocal<>();

    /**
     * An element object for the native element at the handle.
     *
     * @param handle the native element's address
     * @param owns whether this object frees the native element when disposed (it may be set
     *     later, when the object takes the element over); shared with the release action
     */
    protected SoElement(long handle, AtomicBoolean owns) {
        super(handle, releaseIfOwned(handle, Arguments.notNull(owns, "owns")));
        this.owns = owns;
    }

    private static Runnable releaseIfOwned(long handle, AtomicBoolean owns) {
        return () -> {
            if (owns.get()) {
                deleteNative(handle);
            }
        };
    }

    /**
     * Makes this object free its native element when disposed (an element no state owns, such as
     * a copy made by {@link #copyMatchInfo}).
     */
    protected final void takeOwnership() {
        owns.set(true);
    }

    /**
     * Whether the element being made now, by the toolkit, is the copy that {@link #copyMatchInfo}
     * is making for its caller (rather than an element of a traversal's state). Reads and clears
     * the mark: the first element made during the copy is the copy.
     *
     * @return true for the copy
     */
    protected static boolean madeAsCopy() {
        boolean copying = Boolean.TRUE.equals(COPYING.get());
        COPYING.remove();
        return copying;
    }

    /**
     * Called by the state when the element is put above the previous top of its stack. The
     * toolkit does nothing here.
     *
     * @param state the traversal state
     */
    public void push(SoState state) {}

    /**
     * Called by the state when the element becomes the top of its stack again. The toolkit does
     * nothing here.
     *
     * @param state the traversal state
     * @param previousTop the element that was just popped
     */
    public void pop(SoState state, SoElement previousTop) {}

    /**
     * Gives the element its default value (the toolkit's behaviour).
     *
     * @param state the traversal state
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the element or the state has been disposed
     */
    public void init(SoState state) {
        initNative(handle(), handleOf(state, "state"));
    }

    /**
     * Whether the element matches another (the toolkit's behaviour: both name the same node).
     *
     * @param element the element to compare with
     * @return the toolkit's answer
     * @throws NullPointerException when element is null
     * @throws IllegalStateException when either element has been disposed
     */
    public boolean matches(SoElement element) {
        return matchesNative(handle(), handleOf(element, "element"));
    }

    /**
     * A new element of the same type naming the same node (the toolkit's behaviour), owned by the
     * returned object: freed when it is disposed, at the latest when the traversal in progress
     * ends.
     *
     * @return the copy, or null when the toolkit made none
     * @throws IllegalStateException when the element has been disposed
     */
    public SoElement copyMatchInfo() {
        long h = handle();
        long copy;
        COPYING.set(Boolean.TRUE);
        try {
            copy = copyMatchInfoNative(h);
        } finally {
            COPYING.remove();
        }
        if (copy == 0) {
            return null;
        }
        Object peer = ManagedObjects.peerOf(copy);
        if (peer instanceof SoElement) {
            ((SoElement) peer).takeOwnership();
            return (SoElement) peer;
        }
        SoElement view = new SoElement(copy, new AtomicBoolean(true));
        return Traversals.isActive() ? Traversals.own(view) : view;
    }

    /**
     * Records the element in the state's captured elements (the toolkit's behaviour).
     *
     * @param state the traversal state
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the element or the state has been disposed
     */
    public void captureThis(SoState state) {
        captureThisNative(handle(), handleOf(state, "state"));
    }

    /**
     * Captures the element when the state's cache flag is set: calls {@link #captureThis}
     * (which may be a Java override).
     *
     * @param state the traversal state
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the element or the state has been disposed
     */
    public void capture(SoState state) {
        long s = handleOf(state, "state");
        long h = enter();
        try {
            captureNative(h, s);
        } finally {
            leave();
        }
    }

    /**
     * Whether the element has been popped off its stack.
     *
     * @return the popped flag
     * @throws IllegalStateException when the element has been disposed
     */
    public boolean isPopped() {
        return isPoppedNative(handle());
    }

    /**
     * The element below this one in its stack.
     *
     * @return the element, or null at the bottom
     * @throws IllegalStateException when the element has been disposed
     */
    public SoElement getNextInStack() {
        return (SoElement) ManagedObjects.get("com.kestrum.corvel.elements.SoElement", getNextInStackNative(handle()));
    }

    /**
     * The name of the element's toolkit type.
     *
     * @return the type name
     * @throws IllegalStateException when the element has been disposed
     */
    public String getTypeName() {
        return getTypeNameNative(handle());
    }

    /**
     * The stack index of the element.
     *
     * @return the index
     * @throws IllegalStateException when the element has been disposed
     */
    public int getStackIndex() {
        return getStackIndexNative(handle());
    }

    /**
     * The element's key.
     *
     * @return the key, as an unsigned 16-bit value
     * @throws IllegalStateException when the element has been disposed
     */
    public int getElementKey() {
        return getElementKeyNative(handle());
    }

    private static native void deleteNative(long handle);

    private static native void initNative(long handle, long state);

    private static native boolean matchesNative(long handle, long element);

    private static native long copyMatchInfoNative(long handle);

    private static native void captureThisNative(long handle, long state);

    private static native void captureNative(long handle, long state);

    private static native boolean isPoppedNative(long handle);

    private static native long getNextInStackNative(long handle);

    private static native String getTypeNameNative(long handle);

    private static native int getStackIndexNative(long handle);

    private static native int getElementKeyNative(long handle);
}
