package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Text attributes of graph annotations: the font, the length of text lines (a type and a
 * length), and whether the text is drawn with a profile. See {@link PbBase} for the ownership of
 * attribute objects.
 */
public class PbMiscTextAttr extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbMiscTextAttr.class.getName(), PbMiscTextAttr::new);
    }

    /** What the line length limits. */
    public enum LineLengths {
        /** The longest a line may be. */
        LINELENGTHMAX(JarInitializer.value(LineLengths::getLINELENGTHMAXNative)),
        /** The shortest a line may be. */
        LINELENGTHMIN(JarInitializer.value(LineLengths::getLINELENGTHMINNative));

        private final int value;

        LineLengths(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        /** The constant with the toolkit's value, or null. */
        public static LineLengths fromValue(int value) {
            for (LineLengths l : values()) {
                if (l.value == value) {
                    return l;
                }
            }
            return null;
        }

        private static native int getLINELENGTHMAXNative();

        private static native int getLINELENGTHMINNative();
    }

    public PbMiscTextAttr() {
        super(made(ctorImpl()));
    }

    /** A copy of other attributes, independent of them. */
    public PbMiscTextAttr(PbMiscTextAttr other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /** A view of native text attributes made elsewhere (non-zero handle). */
    protected PbMiscTextAttr(long handle) {
        super(handle);
    }

    public void setFontName(String name) {
        setFontNameImpl1(handle(), notNull(name, "name"));
    }

    public String getFontName() {
        return getFontNameImpl(handle());
    }

    /** Sets the line length: what it limits and the number of characters. */
    public void setLineLength(LineLengths type, int length) {
        setLineLengthImpl(handle(), (byte) notNull(type, "type").getValue(), length);
    }

    /** What the line length limits, or null for a value outside the enumeration. */
    public LineLengths getLineLengthType() {
        byte[] type = new byte[1];
        getLineLengthImpl(handle(), type, new int[1]);
        return LineLengths.fromValue(type[0]);
    }

    public int getLineLength() {
        int[] length = new int[1];
        getLineLengthImpl(handle(), new byte[1], length);
        return length[0];
    }

    public void enableProfile(boolean flag) {
        enableProfileImpl(handle(), flag);
    }

    public boolean isProfileEnabled() {
        return isProfileEnabledImpl(handle());
    }

    public void enablePredefinedProfile(boolean flag) {
        enablePredefinedProfileImpl(handle(), flag);
    }

    public boolean isPredefinedProfileEnabled() {
        return isPredefinedProfileEnabledImpl(handle());
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private native void setFontNameImpl1(long handle, String name);

    private native String getFontNameImpl(long handle);

    private native void setLineLengthImpl(long handle, byte type, int length);

    private native void getLineLengthImpl(long handle, byte[] type, int[] length);

    private native void enableProfileImpl(long handle, boolean flag);

    private native boolean isProfileEnabledImpl(long handle);

    private native void enablePredefinedProfileImpl(long handle, boolean flag);

    private native boolean isPredefinedProfileEnabledImpl(long handle);
}
