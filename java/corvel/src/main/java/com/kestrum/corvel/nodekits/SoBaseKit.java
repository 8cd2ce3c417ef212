package com.kestrum.corvel.nodekits;

import com.kestrum.corvel.nodes.SoNode;

/** A node made of named parts. */
public class SoBaseKit extends SoNode {
    protected SoBaseKit(long handle) {
        super(handle);
    }
}
