package com.kestrum.tavrel.graph;

/** A graph attribute object. */
public abstract class PbNumericDisplayFormat extends PbBase {
    protected PbNumericDisplayFormat(long handle) {
        super(handle);
    }
}
