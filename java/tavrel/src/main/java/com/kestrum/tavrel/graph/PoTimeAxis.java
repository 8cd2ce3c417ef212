package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A time axis between two dates ("YYYY-MM-DD", optionally with " hh:mm" or " hh:mm:ss"), its
 * graduations written through a date mapping.
 */
public class PoTimeAxis extends PoAxis {
    static {
        JarInitializer.init();
    }

    /** The language of month and day names. */
    public enum Languages {
        /** The toolkit's {@code ENGLISH}. */
        ENGLISH(JarInitializer.value(Languages::getENGLISHNative)),
        /** The toolkit's {@code FRANCAIS}. */
        FRANCAIS(JarInitializer.value(Languages::getFRANCAISNative)),
        /** The toolkit's {@code DEUTSCH}. */
        DEUTSCH(JarInitializer.value(Languages::getDEUTSCHNative)),
        /** The toolkit's {@code ESPANOL}. */
        ESPANOL(JarInitializer.value(Languages::getESPANOLNative));

        private final int value;

        Languages(int value) {
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
        public static Languages fromValue(int value) {
            return Enums.fromValue(values(), Languages::getValue, value);
        }

        private static native int getENGLISHNative();

        private static native int getFRANCAISNative();

        private static native int getDEUTSCHNative();

        private static native int getESPANOLNative();
    }

    /** Whether graduations must fit. */
    public enum GradFits {
        /** The toolkit's {@code GRADFIT}. */
        GRADFIT(JarInitializer.value(GradFits::getGRADFITNative)),
        /** The toolkit's {@code GRADUNFIT}. */
        GRADUNFIT(JarInitializer.value(GradFits::getGRADUNFITNative));

        private final int value;

        GradFits(int value) {
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
        public static GradFits fromValue(int value) {
            return Enums.fromValue(values(), GradFits::getValue, value);
        }

        private static native int getGRADFITNative();

        private static native int getGRADUNFITNative();
    }

    /** The direction of the axis and the side of its graduations. */
    public enum Types {
        /** The toolkit's {@code X}. */
        X(JarInitializer.value(Types::getXNative)),
        /** The toolkit's {@code Y}. */
        Y(JarInitializer.value(Types::getYNative));

        private final int value;

        Types(int value) {
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
        public static Types fromValue(int value) {
            return Enums.fromValue(values(), Types::getValue, value);
        }

        private static native int getXNative();

        private static native int getYNative();
    }

    /** A new axis with the toolkit's defaults; holds one reference on its native node. */
    public PoTimeAxis() {
        this(ctorImpl());
    }

    /**
     * The axis from date1 to date2, along x at y = position (type X) or along y at x = position (type Y).
     *
     * @param date1 the first reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param date2 the second reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param position the position of the axis
     * @param type the axis's plane and direction
     */
    public PoTimeAxis(String date1, String date2, float position, Types type) {
        this(ctorImpl1(notNull(date1, "date1"), notNull(date2, "date2"), position, notNull(type, "type").getValue()));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoTimeAxis(long handle) {
        super(handle);
    }

    private final Kept<PbDateFormatMapping> mapping = new Kept<>(PbDateFormatMapping.class, "mapping");

    /**
     * Sets the mapping between dates and coordinates, and the date format of the labels; null
     * for none. A change of the node. The node keeps the mapping's address, so this object keeps
     * the Java object as long as it is set.
     *
     * @param mapping the date mapping, or null for none
     */
    public void setDateFormatMapping(PbDateFormatMapping mapping) {
        this.mapping.setRebuilding(this, mapping, this::setDateFormatMappingImpl);
    }

    /**
     * The date mapping, or null: the Java object set earlier, else a view of the address.
     *
     * @return the date mapping, or null: the Java object set earlier, else a view of the address
     */
    public PbDateFormatMapping getDateFormatMapping() {
        return mapping.get(getDateFormatMappingImpl(handle()));
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

    private static native long ctorImpl1(String date1, String date2, float position, int type);

    private native void setDateFormatMappingImpl(long handle, long mapping);

    private native long getDateFormatMappingImpl(long handle);
}
