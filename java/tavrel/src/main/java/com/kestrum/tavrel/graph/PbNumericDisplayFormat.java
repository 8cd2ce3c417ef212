package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * How graph annotations write numbers: a format type and two ints, which the toolkit uses as a
 * width and a precision (how exactly is the toolkit's rule; the README tells the stand-in's). See
 * {@link PbBase} for the ownership of attribute objects.
 */
public class PbNumericDisplayFormat extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbNumericDisplayFormat.class.getName(), PbNumericDisplayFormat::new);
    }

    /** How a number is written. */
    public enum FormatTypes {
        AUTOFORMAT(JarInitializer.value(FormatTypes::getAUTOFORMATNative)),
        FLOATFORMAT(JarInitializer.value(FormatTypes::getFLOATFORMATNative)),
        INTEGERFORMAT(JarInitializer.value(FormatTypes::getINTEGERFORMATNative));

        private final int value;

        FormatTypes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        /** The constant with the toolkit's value, or null. */
        public static FormatTypes fromValue(int value) {
            for (FormatTypes f : values()) {
                if (f.value == value) {
                    return f;
                }
            }
            return null;
        }

        private static native int getAUTOFORMATNative();

        private static native int getFLOATFORMATNative();

        private static native int getINTEGERFORMATNative();
    }

    /** A format as {@link #getFormat} reports it; the type is null for a value outside the enumeration. */
    public record Format(FormatTypes type, int width, int precision) {}

    public PbNumericDisplayFormat(FormatTypes type, int width, int precision) {
        super(made(ctorImpl(valueOf(type), width, precision)));
    }

    /** A copy of another format, independent of it. */
    public PbNumericDisplayFormat(PbNumericDisplayFormat other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /** A view of a native format made elsewhere (non-zero handle). */
    protected PbNumericDisplayFormat(long handle) {
        super(handle);
    }

    public void setFormat(FormatTypes type, int width, int precision) {
        setFormatImpl(handle(), valueOf(type), width, precision);
    }

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
