package com.kestrum.tavrel.graph;

/** A graph attribute object. */
public abstract class PbMiscTextAttr extends PbBase {
    protected PbMiscTextAttr(long handle) {
        super(handle);
    }
}
