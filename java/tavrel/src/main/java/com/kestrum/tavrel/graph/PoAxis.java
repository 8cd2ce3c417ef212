package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.List;

/**
 * Base of the single graduated axes: linear, logarithmic, generalised, polar, angular and time
 * axes. An axis computes its graduations when it is built ({@link #rebuild}); {@link #getGrad}
 * reports those of the last build.
 */
public abstract class PoAxis extends PoBase {
    static {
        JarInitializer.init();
    }

    /** Whether a part of the axis is drawn. */
    public enum Visibilities {
        /** The toolkit's {@code VISIBILITYOFF}. */
        VISIBILITYOFF(JarInitializer.value(Visibilities::getVISIBILITYOFFNative)),
        /** The toolkit's {@code VISIBILITYON}. */
        VISIBILITYON(JarInitializer.value(Visibilities::getVISIBILITYONNative)),
        /** The toolkit's {@code VISIBILITYDEPEND}. */
        VISIBILITYDEPEND(JarInitializer.value(Visibilities::getVISIBILITYDEPENDNative));

        private final int value;

        Visibilities(int value) {
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
        public static Visibilities fromValue(int value) {
            return Enums.fromValue(values(), Visibilities::getValue, value);
        }

        private static native int getVISIBILITYOFFNative();

        private static native int getVISIBILITYONNative();

        private static native int getVISIBILITYDEPENDNative();
    }

    /** The direction in which text is written. */
    public enum TextPaths {
        /** The toolkit's {@code PATHRIGHT}. */
        PATHRIGHT(JarInitializer.value(TextPaths::getPATHRIGHTNative)),
        /** The toolkit's {@code PATHLEFT}. */
        PATHLEFT(JarInitializer.value(TextPaths::getPATHLEFTNative)),
        /** The toolkit's {@code PATHUP}. */
        PATHUP(JarInitializer.value(TextPaths::getPATHUPNative)),
        /** The toolkit's {@code PATHDOWN}. */
        PATHDOWN(JarInitializer.value(TextPaths::getPATHDOWNNative)),
        /** The toolkit's {@code PATHDEPEND}. */
        PATHDEPEND(JarInitializer.value(TextPaths::getPATHDEPENDNative));

        private final int value;

        TextPaths(int value) {
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
        public static TextPaths fromValue(int value) {
            return Enums.fromValue(values(), TextPaths::getValue, value);
        }

        private static native int getPATHRIGHTNative();

        private static native int getPATHLEFTNative();

        private static native int getPATHUPNative();

        private static native int getPATHDOWNNative();

        private static native int getPATHDEPENDNative();
    }

    /** Which side of the axis the graduations are on. */
    public enum GradPositions {
        /** The toolkit's {@code GRADABOVE}. */
        GRADABOVE(JarInitializer.value(GradPositions::getGRADABOVENative)),
        /** The toolkit's {@code GRADBELOW}. */
        GRADBELOW(JarInitializer.value(GradPositions::getGRADBELOWNative)),
        /** The toolkit's {@code GRADDEPEND}. */
        GRADDEPEND(JarInitializer.value(GradPositions::getGRADDEPENDNative));

        private final int value;

        GradPositions(int value) {
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
        public static GradPositions fromValue(int value) {
            return Enums.fromValue(values(), GradPositions::getValue, value);
        }

        private static native int getGRADABOVENative();

        private static native int getGRADBELOWNative();

        private static native int getGRADDEPENDNative();
    }

    /** How the margins are measured. */
    public enum MarginTypes {
        /** The toolkit's {@code RELMARGIN}. */
        RELMARGIN(JarInitializer.value(MarginTypes::getRELMARGINNative)),
        /** The toolkit's {@code FIXEDMARGIN}. */
        FIXEDMARGIN(JarInitializer.value(MarginTypes::getFIXEDMARGINNative));

        private final int value;

        MarginTypes(int value) {
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
        public static MarginTypes fromValue(int value) {
            return Enums.fromValue(values(), MarginTypes::getValue, value);
        }

        private static native int getRELMARGINNative();

        private static native int getFIXEDMARGINNative();
    }

    /** Where the ticks are drawn. */
    public enum TickPositions {
        /** The toolkit's {@code TICKGRADSIDE}. */
        TICKGRADSIDE(JarInitializer.value(TickPositions::getTICKGRADSIDENative)),
        /** The toolkit's {@code TICKGRADOTHERSIDE}. */
        TICKGRADOTHERSIDE(JarInitializer.value(TickPositions::getTICKGRADOTHERSIDENative)),
        /** The toolkit's {@code TICKACROSSAXIS}. */
        TICKACROSSAXIS(JarInitializer.value(TickPositions::getTICKACROSSAXISNative));

        private final int value;

        TickPositions(int value) {
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
        public static TickPositions fromValue(int value) {
            return Enums.fromValue(values(), TickPositions::getValue, value);
        }

        private static native int getTICKGRADSIDENative();

        private static native int getTICKGRADOTHERSIDENative();

        private static native int getTICKACROSSAXISNative();
    }

    /** Where the title is along the axis. */
    public enum TitlePositions {
        /** The toolkit's {@code TITLEMIDDLE}. */
        TITLEMIDDLE(JarInitializer.value(TitlePositions::getTITLEMIDDLENative)),
        /** The toolkit's {@code TITLEEND}. */
        TITLEEND(JarInitializer.value(TitlePositions::getTITLEENDNative)),
        /** The toolkit's {@code TITLEDEPEND}. */
        TITLEDEPEND(JarInitializer.value(TitlePositions::getTITLEDEPENDNative));

        private final int value;

        TitlePositions(int value) {
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
        public static TitlePositions fromValue(int value) {
            return Enums.fromValue(values(), TitlePositions::getValue, value);
        }

        private static native int getTITLEMIDDLENative();

        private static native int getTITLEENDNative();

        private static native int getTITLEDEPENDNative();
    }

    /** How sub-ticks are counted. */
    public enum TickSubDefs {
        /** The toolkit's {@code NUMSUBTICK}. */
        NUMSUBTICK(JarInitializer.value(TickSubDefs::getNUMSUBTICKNative)),
        /** The toolkit's {@code PERIODMAINTICK}. */
        PERIODMAINTICK(JarInitializer.value(TickSubDefs::getPERIODMAINTICKNative));

        private final int value;

        TickSubDefs(int value) {
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
        public static TickSubDefs fromValue(int value) {
            return Enums.fromValue(values(), TickSubDefs::getValue, value);
        }

        private static native int getNUMSUBTICKNative();

        private static native int getPERIODMAINTICKNative();
    }

    /** Whether the values decrease along the axis. */
    public enum AxisReverses {
        /** The toolkit's {@code AXISNOREVERSE}. */
        AXISNOREVERSE(JarInitializer.value(AxisReverses::getAXISNOREVERSENative)),
        /** The toolkit's {@code AXISREVERSE}. */
        AXISREVERSE(JarInitializer.value(AxisReverses::getAXISREVERSENative)),
        /** The toolkit's {@code AXISREVERSEDEPEND}. */
        AXISREVERSEDEPEND(JarInitializer.value(AxisReverses::getAXISREVERSEDEPENDNative));

        private final int value;

        AxisReverses(int value) {
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
        public static AxisReverses fromValue(int value) {
            return Enums.fromValue(values(), AxisReverses::getValue, value);
        }

        private static native int getAXISNOREVERSENative();

        private static native int getAXISREVERSENative();

        private static native int getAXISREVERSEDEPENDNative();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoAxis(long handle) {
        super(handle);
    }

    /**
     * The graduation settings and the graduations of the last build. The labels are one text,
     * a line a graduation ({@link #labelList}).
     */
    public record Grad(Visibilities visibility, GradPositions position, TextPaths path, String labels, float first,
            float last, boolean current, String fontName) {
        /**
         * The labels, one a graduation (empty when there are none, or when the record was made
         * without a text).
         *
         * @return the labels, one a graduation (empty when there are none)
         */
        public List<String> labelList() {
            return labels == null || labels.isEmpty() ? List.of() : List.of(labels.split("\n", -1));
        }
    }

    /** The title settings: the title, the values at the start and end of the axis, the font. */
    public record Title(Visibilities visibility, TitlePositions position, TextPaths path, String title, float start,
            float end, String fontName) {}

    /** The tick settings; the three counts are the toolkit's unsigned 16-bit values. */
    public record Tick(Visibilities visibility, TickPositions position, float mainLength, float subLength,
            TickSubDefs subDef, int mainTicks, int subTicks, int firstTick) {}

    /**
     * The margins at the axis's ends.
     *
     * @param type how the margins are read
     * @param start the margin at the start
     * @param end the margin at the end
     */
    public record Margin(MarginTypes type, float start, float end) {}

    /** The grid or arrow settings: a visibility and two lengths. */
    public record Lines(Visibilities visibility, float length1, float length2) {}

    private final Kept<PbMiscTextAttr> textAttr = new Kept<>(PbMiscTextAttr.class, "attr");

    /**
     * Sets the text attributes of the axis's text; null for none. A change of the node. The node
     * keeps the object's address, so this object keeps the Java object as long as it is set.
     *
     * @param attr the text attributes, or null for none
     */
    public void setMiscTextAttr(PbMiscTextAttr attr) {
        textAttr.setRebuilding(this, attr, this::setMiscTextAttrImpl);
    }

    /**
     * The text attributes, or null: the Java object set earlier, else a view of the address.
     *
     * @return the text attributes, or null: the Java object set earlier, else a view of the address
     */
    public PbMiscTextAttr getMiscTextAttr() {
        return textAttr.get(getMiscTextAttrImpl(handle()));
    }

    /**
     * Whether the values decrease along the axis; null for a value outside the enumeration.
     *
     * @return whether the values decrease along the axis; null for a value outside the enumeration
     */
    public AxisReverses getReverseFlag() {
        return AxisReverses.fromValue(getReverseFlagImpl(handle()));
    }

    /**
     * The graduations of the axis's last build: the labels as one text, a line a graduation, the first and
     * last values, and whether they are current.
     *
     * @return the graduations of the axis's last build: the labels as one text, a line a graduation, the
     *     first and last values, and whether they are current
     */
    public Grad getGrad() {
        int[] visibility = new int[1], position = new int[1], path = new int[1];
        String[] labels = new String[1], font = new String[1];
        float[] first = new float[1], last = new float[1];
        boolean[] current = new boolean[1];
        getGradImpl(handle(), visibility, position, path, labels, first, last, current, font);
        return new Grad(Visibilities.fromValue(visibility[0]), GradPositions.fromValue(position[0]),
                TextPaths.fromValue(path[0]), labels[0], first[0], last[0], current[0], font[0]);
    }

    /**
     * The labels of the graduations of the last build, in the order the axis runs.
     *
     * @return the labels of the graduations of the last build, in the order the axis runs
     */
    public List<String> getGraduations() {
        return getGrad().labelList();
    }

    /**
     * The axis's title settings.
     *
     * @return the axis's title settings
     */
    public Title getTitle() {
        int[] visibility = new int[1], position = new int[1], path = new int[1];
        String[] title = new String[1], font = new String[1];
        float[] start = new float[1], end = new float[1];
        getTitleImpl(handle(), visibility, position, path, title, start, end, font);
        return new Title(Visibilities.fromValue(visibility[0]), TitlePositions.fromValue(position[0]),
                TextPaths.fromValue(path[0]), title[0], start[0], end[0], font[0]);
    }

    /**
     * The axis's tick settings.
     *
     * @return the axis's tick settings
     */
    public Tick getTick() {
        int[] visibility = new int[1], position = new int[1], subDef = new int[1];
        float[] mainLength = new float[1], subLength = new float[1];
        short[] main = new short[1], sub = new short[1], first = new short[1];
        getTickImpl(handle(), visibility, position, mainLength, subLength, subDef, main, sub, first);
        return new Tick(Visibilities.fromValue(visibility[0]), TickPositions.fromValue(position[0]), mainLength[0],
                subLength[0], TickSubDefs.fromValue(subDef[0]), Short.toUnsignedInt(main[0]),
                Short.toUnsignedInt(sub[0]), Short.toUnsignedInt(first[0]));
    }

    /**
     * The axis's margin settings.
     *
     * @return the axis's margin settings
     */
    public Margin getMargin() {
        int[] type = new int[1];
        float[] start = new float[1], end = new float[1];
        getMarginImpl(handle(), type, start, end);
        return new Margin(MarginTypes.fromValue(type[0]), start[0], end[0]);
    }

    /**
     * The axis's grid settings.
     *
     * @return the axis's grid settings
     */
    public Lines getGrid() {
        return lines(this::getGridImpl);
    }

    /**
     * The axis's arrow settings.
     *
     * @return the axis's arrow settings
     */
    public Lines getArrow() {
        return lines(this::getArrowImpl);
    }

    /** A native getter of a visibility and two lengths. */
    @FunctionalInterface
    private interface LinesGetter {
        void get(long handle, int[] visibility, float[] length1, float[] length2);
    }

    private Lines lines(LinesGetter getter) {
        int[] visibility = new int[1];
        float[] a = new float[1], b = new float[1];
        getter.get(handle(), visibility, a, b);
        return new Lines(Visibilities.fromValue(visibility[0]), a[0], b[0]);
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

    private native void setMiscTextAttrImpl(long handle, long attr);

    private native long getMiscTextAttrImpl(long handle);

    private native int getReverseFlagImpl(long handle);

    private native void getGradImpl(long handle, int[] visibility, int[] position, int[] path, String[] labels,
            float[] first, float[] last, boolean[] current, String[] fontName);

    private native void getTitleImpl(long handle, int[] visibility, int[] position, int[] path, String[] title,
            float[] start, float[] end, String[] fontName);

    private native void getTickImpl(long handle, int[] visibility, int[] position, float[] mainLength,
            float[] subLength, int[] subDef, short[] mainTicks, short[] subTicks, short[] firstTick);

    private native void getMarginImpl(long handle, int[] type, float[] start, float[] end);

    private native void getGridImpl(long handle, int[] visibility, float[] length1, float[] length2);

    private native void getArrowImpl(long handle, int[] visibility, float[] length1, float[] length2);
}
