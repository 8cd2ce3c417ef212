package com.kestrum.tavrel.testkit;

/** Element operations as the toolkit and the binding core call them. */
public final class Elements {
    static {
        TestLibrary.ensureLoaded();
    }

    private Elements() {}

    /** The element's virtual matches (a Java element's override), exceptions left pending. */
    public static native boolean matches(long element, long other);

    /**
     * The element's virtual push (operation 0), pop with itself as the previous top (1), init (2)
     * or captureThis (3) with the state; exceptions left pending.
     */
    public static native void stateOperation(long element, long state, int operation);

    /** The element's virtual copyMatchInfo: the address of the copy, 0 for none. */
    public static native long copyMatchInfo(long element);

    /** Whether the element has the element access interface (a Java element). */
    public static native boolean isJavaElement(long element);

    /** The popped flag after the access interface's setPoppedDefaultImpl(value). */
    public static native boolean poppedAfterSetting(long element, int value);

    /** captureDefaultImpl on a new state with the cache flag given; the number of captured elements. */
    public static native int captureOnNewState(long element, boolean cacheOpen);

    /** The top element of a stack of a live state (made on first use), 0 when none could be made. */
    public static native long topElement(long state, int stackIndex);
}
