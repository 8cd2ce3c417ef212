package com.kestrum.corvel.elements;

import java.util.concurrent.atomic.AtomicBoolean;

/**
 * An element whose value is replaced as a whole by the node that sets it; it names that node.
 * Two such elements match when they name the same node.
 */
public class SoReplacedElement extends SoElement {
    /**
     * An element object for the native element at the handle.
     *
     * @param handle the native element's address
     * @param owns whether this object frees the native element when disposed
     */
    protected SoReplacedElement(long handle, AtomicBoolean owns) {
        super(handle, owns);
    }
}
