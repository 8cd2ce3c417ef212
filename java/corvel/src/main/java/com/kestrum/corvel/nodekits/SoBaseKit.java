package com.kestrum.corvel.nodekits;

import com.kestrum.corvel.nodes.SoNode;

/** A node made of named parts. */
public class SoBaseKit extends SoNode {
    /**
     * Wraps a native node kit (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected SoBaseKit(long handle) {
        super(handle);
    }
}
