package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/** A coordinate-system triad: three axes from an origin to an end point. */
public class PoCoordinateSystemAxis extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** A new triad with the toolkit's defaults; holds one reference on its native node. */
    public PoCoordinateSystemAxis() {
        this(ctorImpl());
    }

    /**
     * The triad from origin to end, with the titles of its axes and two lengths of the toolkit's.
     *
     * @param origin the origin
     * @param end the end point
     * @param xTitle the title of the x axis
     * @param yTitle the title of the y axis
     * @param zTitle the title of the z axis
     * @param gradDistance the distance between two graduations
     * @param arrowLength the length of the arrows at the axes' ends
     */
    public PoCoordinateSystemAxis(SbVec3f origin, SbVec3f end, String xTitle, String yTitle, String zTitle,
            float gradDistance, float arrowLength) {
        this(ctorImpl1(Checks.point(origin, "origin"), Checks.point(end, "end"), notNull(xTitle, "xTitle"),
                notNull(yTitle, "yTitle"), notNull(zTitle, "zTitle"), gradDistance, arrowLength));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCoordinateSystemAxis(long handle) {
        super(handle);
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

    private static native long ctorImpl1(float[] start, float[] end, String xTitle, String yTitle, String zTitle,
            float gradDistance, float arrowLength);
}
