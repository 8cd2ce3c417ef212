package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A cube of axes around the box between two corners. */
public class PoAutoCubeAxis extends PoBase {
    static {
        JarInitializer.init();
    }

    /** The kind of each axis. */
    public enum AxisTypes {
        /** The toolkit's {@code LINEAR}. */
        LINEAR(JarInitializer.value(AxisTypes::getLINEARNative)),
        /** The toolkit's {@code LOGARITHMIC}. */
        LOGARITHMIC(JarInitializer.value(AxisTypes::getLOGARITHMICNative)),
        /** The toolkit's {@code GENERALIZED}. */
        GENERALIZED(JarInitializer.value(AxisTypes::getGENERALIZEDNative));

        private final int value;

        AxisTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static AxisTypes fromValue(int value) {
            return Enums.fromValue(values(), AxisTypes::getValue, value);
        }

        private static native int getLINEARNative();

        private static native int getLOGARITHMICNative();

        private static native int getGENERALIZEDNative();
    }

    /** A new group with the toolkit's defaults; holds one reference on its native node. */
    public PoAutoCubeAxis() {
        this(ctorImpl());
    }

    /**
     * The group from the corner start to the corner end, with the kinds and titles of its axes.
     *
     * @param start the start point
     * @param end the end point
     * @param xType the type of the x axis
     * @param yType the type of the y axis
     * @param zType the type of the z axis
     * @param xTitle the title of the x axis
     * @param yTitle the title of the y axis
     * @param zTitle the title of the z axis
     */
    public PoAutoCubeAxis(SbVec3f start, SbVec3f end, AxisTypes xType, AxisTypes yType, AxisTypes zType, String xTitle, String yTitle, String zTitle) {
        this(ctorImpl1(Checks.point(start, "start"), Checks.point(end, "end"), notNull(xType, "xType").getValue(),
                notNull(yType, "yType").getValue(), notNull(zType, "zType").getValue(),
                notNull(xTitle, "xTitle"), notNull(yTitle, "yTitle"), notNull(zTitle, "zTitle")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoAutoCubeAxis(long handle) {
        super(handle);
    }

    /**
     * Renders the node with the action (rebuilding it first when it has changed, which may call
     * Java): holds the node and the action meanwhile, as every traversal operation does.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    @Override
    public void GLRender(SoGLRenderAction action) {
        traverse(action, this::GLRenderImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] start, float[] end, int xType, int yType, int zType, String xTitle, String yTitle, String zTitle);

    private native void GLRenderImpl(long handle, long action);
}
