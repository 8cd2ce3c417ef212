package com.kestrum.tavrel.graph;

import com.kestrum.corvel.misc.NativeObject;

/** Base of the graph attribute objects (domains, data mappings, formats, ...). */
public abstract class PbBase extends NativeObject {
    protected PbBase(long handle) {
        super(handle);
    }
}
