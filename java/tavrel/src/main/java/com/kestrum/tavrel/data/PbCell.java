package com.kestrum.tavrel.data;

import com.kestrum.corvel.misc.NativeObject;

/** One cell of a mesh. */
public class PbCell extends NativeObject {
    protected PbCell(long handle) {
        super(handle);
    }
}
