package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * How graph annotations write numbers: a format type and two ints, which the toolkit uses as a
 * width and a precision (how exactly is the toolkit's rule; docs/graph.md in the repository
 * tells the stand-in's). See {@link PbBase} for the ownership of attribute objects.
 */
public class PbNumericDisplayFormat extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbNumericDisplayFormat.class.getName(), PbNumericDisplayFormat::new);
    }

    /** How a number is written. */
    public enum FormatTypes {
        /** The toolkit's {@code AUTOFORMAT}. */
        AUTOFORMAT(JarInitializer.value(FormatTypes::getAUTOFORMATNative)),
        /** The toolkit's {@code FLOATFORMAT}. */
        FLOATFORMAT(JarInitializer.value(FormatTypes::getFLOATFORMATNative)),
        /** The toolkit's {@code INTEGERFORMAT}. */
        INTEGERFORMAT(JarInitializer.value(FormatTypes::getINTEGERFORMATNative));

        private final int value;

        FormatTypes(int value) {
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
        public static FormatTypes fromValue(int value) {
            return Enums.fromValue(values(), FormatTypes::getValue, value);
        }

        private static native int getAUTOFORMATNative();

        private static native int getFLOATFORMATNative();

        private static native int getINTEGERFORMATNative();
    }

    /** A format as {@link #getFormat} reports it; the type is null for a value outside the enumeration. */
    public record Format(FormatTypes type, int width, int precision) {}

    /**
     * A numeric format of that type, width and precision.
     *
     * @param type how numbers are written
     * @param width the width the numbers are padded to, at most 64
     * @param precision the number of digits, at most 16
     */
    public PbNumericDisplayFormat(FormatTypes type, int width, int precision) {
        super(made(ctorImpl(valueOf(type), width, precision)));
    }

    /**
     * A copy of another format, independent of it.
     *
     * @param other the object to copy
     */
    public PbNumericDisplayFormat(PbNumericDisplayFormat other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A view of a native format made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbNumericDisplayFormat(long handle) {
        super(handle);
    }

    /**
     * Sets the format's type, width and precision.
     *
     * @param type how numbers are written
     * @param width the width the numbers are padded to, at most 64
     * @param precision the number of digits, at most 16
     */
    public void setFormat(FormatTypes type, int width, int precision) {
        setFormatImpl(handle(), valueOf(type), width, precision);
    }

    /**
     * The format's type, width and precision.
     *
     * @return the format's type, width and precision
     */
    public Format getFormat() {
        int[] type = new int[1], width = new int[1], precision = new int[1];
        getFormatImpl(handle(), type, width, precision);
        return new Format(FormatTypes.fromValue(type[0]), width[0], precision[0]);
    }

    private static int valueOf(FormatTypes type) {
        return notNull(type, "type").getValue();
    }

    private static native long ctorImpl(int type, int width, int precision);

    private static native long ctorImpl1(long other);

    private native void setFormatImpl(long handle, int type, int width, int precision);

    private native void getFormatImpl(long handle, int[] type, int[] width, int[] precision);
}
