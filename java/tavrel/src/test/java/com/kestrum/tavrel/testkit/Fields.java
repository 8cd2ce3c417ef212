package com.kestrum.tavrel.testkit;

import java.util.Arrays;
import java.util.List;

/** What the toolkit keeps in fields and field data, and connections between fields. */
public final class Fields {
    static {
        TestLibrary.ensureLoaded();
    }

    private Fields() {}

    /**
     * Connects a field from another one, as the toolkit does: the field needs evaluation from
     * then on and after every change of the other field's value. 0 disconnects it.
     */
    public static native void connect(long field, long from);

    /** The field's three-bit field type. */
    public static native int fieldType(long field);

    public static native boolean needsEvaluation(long field);

    /** Whether the field's value was never set. */
    public static native boolean isDefault(long field);

    /** The node the field belongs to, 0 for none. */
    public static native long container(long field);

    /** The entries of the node's field data, "name=address" (address in decimal, 0 for none). */
    public static List<String> fieldData(long node) {
        return Arrays.asList(fieldDataNative(node));
    }

    @SuppressWarnings("unused")
    private static native String[] fieldDataNative(long node);
}
