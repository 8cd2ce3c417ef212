package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A cell filter written in Java: the representations that use it ask {@link #acceptCell} about
 * each cell of their mesh and draw only the accepted ones. Subclass it and override
 * {@code acceptCell}; everything said of {@link PoNode} holds, with the messages
 * "Exception raised during execution of CustomPoCellFilter.&lt;operation&gt;.".
 *
 * <p>The toolkit behaviour of a cell filter: {@code doAction} traverses its children,
 * {@code write} writes nothing, and {@code acceptCell} has none (a class that does not override
 * it answers with an {@link UnsupportedOperationException} caused by the toolkit's
 * {@link IllegalAccessException}).
 */
public abstract class PoCellFilter extends PoNode {
    static {
        JarInitializer.init();
        nativeDerivedClassInit();
    }

    private static final CustomTypes.Natives NATIVES = new CustomTypes.Natives() {
        @Override
        public void initCustomClass(PoNode node, long handle, boolean create, String typeName) {
            ((PoCellFilter) node).initCustomClass(handle, node, create, typeName);
        }

        @Override
        public void initCustomRenderEngineMode(PoNode node, long handle) {
            ((PoCellFilter) node).initCustomRenderEngineMode(handle);
        }
    };

    /** A filter whose toolkit type is named after the class's simple name. */
    protected PoCellFilter() {
        this(null);
    }

    /**
     * A filter whose class has the toolkit type {@code typeName} (see {@link PoNode#PoNode(String)}).
     *
     * @param typeName the name of the toolkit type
     */
    protected PoCellFilter(String typeName) {
        super(ctorImpl(), typeName, NATIVES);
    }

    /**
     * The name of the toolkit type of PoCellFilter (the base of every Java filter's type).
     *
     * @return the name of the toolkit type of PoCellFilter (the base of every Java filter's type)
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * Whether the cell of that index, whose value is {@code value}, is accepted. Override it:
     * the toolkit has no answer of its own.
     *
     * @param cellIndex the index of the cell
     * @param value the cell's value (its mesh's values set 0, per cell or the mean of its nodes; 0 without one)
     * @return whether the cell of that index, whose value is {@code value}, is accepted
     * @throws UnsupportedOperationException when the class does not override it (the toolkit's
     *     refusal, an {@link IllegalAccessException}, is the cause)
     * @throws IllegalStateException when the filter has been disposed
     */
    public boolean acceptCell(int cellIndex, float value) {
        long h = handle();
        return ToolkitRefusals.unlessRefused("PoCellFilter.acceptCell", () -> acceptCellImpl(h, cellIndex, value));
    }

    @Override
    public void doAction(SoAction action) {
        traverse(action, this::doActionImpl);
    }

    @Override
    public void write(SoWriteAction action) {
        traverse(action, this::writeImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native void nativeDerivedClassInit();

    private native void initCustomClass(long handle, Object peer, boolean create, String typeName);

    private native void initCustomRenderEngineMode(long handle);

    private native boolean acceptCellImpl(long handle, int cellIndex, float value) throws IllegalAccessException;

    private native void doActionImpl(long handle, long action);

    private native void writeImpl(long handle, long action);
}
