package com.kestrum.tavrel.graph;

/** A graph attribute object. */
public abstract class PbDataMapping extends PbBase {
    protected PbDataMapping(long handle) {
        super(handle);
    }
}
