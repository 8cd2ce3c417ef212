package com.kestrum.tavrel.graph;

/** A graph attribute object. */
public abstract class PbIsovaluesList extends PbBase {
    protected PbIsovaluesList(long handle) {
        super(handle);
    }
}
