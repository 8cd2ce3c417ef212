package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.Enums;
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

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static LineLengths fromValue(int value) {
            return Enums.fromValue(values(), LineLengths::getValue, value);
        }

        private static native int getLINELENGTHMAXNative();

        private static native int getLINELENGTHMINNative();
    }

    /** Text attributes with the toolkit's defaults. */
    public PbMiscTextAttr() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of other attributes, independent of them.
     *
     * @param other the object to copy
     */
    public PbMiscTextAttr(PbMiscTextAttr other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A view of native text attributes made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbMiscTextAttr(long handle) {
        super(handle);
    }

    /**
     * Sets the name of the font.
     *
     * @param name the font's name
     * @throws NullPointerException when name is null
     */
    public void setFontName(String name) {
        setFontNameImpl1(handle(), notNull(name, "name"));
    }

    /**
     * The name of the font.
     *
     * @return the name of the font
     */
    public String getFontName() {
        return getFontNameImpl(handle());
    }

    /**
     * Sets the line length: what it limits and the number of characters.
     *
     * @param type how the length is read
     * @param length the length of a line
     */
    public void setLineLength(LineLengths type, int length) {
        setLineLengthImpl(handle(), (byte) notNull(type, "type").getValue(), length);
    }

    /**
     * What the line length limits, or null for a value outside the enumeration.
     *
     * @return what the line length limits, or null for a value outside the enumeration
     */
    public LineLengths getLineLengthType() {
        byte[] type = new byte[1];
        getLineLengthImpl(handle(), type, new int[1]);
        return LineLengths.fromValue(type[0]);
    }

    /**
     * The length of the text lines.
     *
     * @return the length of the text lines
     */
    public int getLineLength() {
        int[] length = new int[1];
        getLineLengthImpl(handle(), new byte[1], length);
        return length[0];
    }

    /**
     * Switches the text profile on or off.
     *
     * @param flag true to switch it on, false to switch it off
     */
    public void enableProfile(boolean flag) {
        enableProfileImpl(handle(), flag);
    }

    /**
     * Whether the text profile is used.
     *
     * @return whether the text profile is used
     */
    public boolean isProfileEnabled() {
        return isProfileEnabledImpl(handle());
    }

    /**
     * Switches the predefined text profile on or off.
     *
     * @param flag true to switch it on, false to switch it off
     */
    public void enablePredefinedProfile(boolean flag) {
        enablePredefinedProfileImpl(handle(), flag);
    }

    /**
     * Whether the predefined text profile is used.
     *
     * @return whether the predefined text profile is used
     */
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
