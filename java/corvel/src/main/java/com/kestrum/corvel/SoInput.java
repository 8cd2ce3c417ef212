package com.kestrum.corvel;

import com.kestrum.corvel.misc.Arguments;
import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/**
 * An input source for reading scene files. An input made in Java reads from a string and is
 * freed when disposed; inputs that the toolkit hands to Java are views.
 */
public class SoInput extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.SoInput", SoInput::new);
    }

    /**
     * An input that reads the text.
     *
     * @param text the text to read
     */
    public SoInput(String text) {
        this(newInput(text));
    }

    private SoInput(long[] owned) {
        super(owned[0], releaseWith(SoInput::deleteNative, owned[0]));
    }

    /**
     * A view of a native input owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoInput(long handle) {
        super(handle);
    }

    private static long[] newInput(String text) {
        return new long[] {newNative(Arguments.notNull(text, "text"))};
    }

    private static native long newNative(String text);

    private static native void deleteNative(long handle);
}
