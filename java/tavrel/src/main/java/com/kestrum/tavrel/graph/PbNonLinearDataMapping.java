package com.kestrum.tavrel.graph;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A data mapping made of levels, which the toolkit's own code gives it; from Java it is made and
 * used through what every mapping offers. See {@link PbBase} for the ownership of attribute
 * objects.
 */
public class PbNonLinearDataMapping extends PbDataMapping {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbNonLinearDataMapping.class.getName(), PbNonLinearDataMapping::new);
    }

    /** A non-linear mapping made from Java (it gives every value black). */
    public PbNonLinearDataMapping() {
        super(made(ctorImpl()));
    }

    /**
     * A view of a native mapping made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbNonLinearDataMapping(long handle) {
        super(handle);
    }

    private static native long ctorImpl();
}
