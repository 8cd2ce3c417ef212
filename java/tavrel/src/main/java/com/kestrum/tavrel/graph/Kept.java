package com.kestrum.tavrel.graph;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.internal.JavaViews;

/**
 * An attribute object that a graph node keeps by address, not by copy (a text attribute, a data
 * mapping, a format, an isovalue list, a date-format mapping, a domain). The node's Java object
 * keeps the Java object last set, so that it stays reachable while the node uses it, and hands it
 * back as long as the node still holds its address; otherwise the getter gives the registered
 * Java object of the address the node holds, or a view of it.
 *
 * @param <T> the attribute object's class
 */
final class Kept<T extends NativeObject> {
    /** The native setter of a node: the node's handle and the object's address, 0 for none. */
    @FunctionalInterface
    interface Setter {
        void set(long node, long address);
    }

    private final Class<T> type;
    private final String name;
    private T kept;

    /**
     * @param type the attribute object's class, for the view of an address
     * @param name the setter's argument, for the exceptions' messages
     */
    Kept(Class<T> type, String name) {
        this.type = type;
        this.name = name;
    }

    /**
     * Sets the object (null for none) by a native call that cannot rebuild the node, then keeps
     * it. Refuses a disposed object and a view of a traversal's state, which the node could not
     * keep.
     */
    void set(long node, T value, Setter setter) {
        setter.set(node, PoBase.keptAddress(value, name));
        kept = value;
    }

    /**
     * Sets the object (null for none) by a native call that may rebuild the node, holding the node
     * and the object until it returns (as {@code PoBase.rebuilding} does); the object is kept before the call.
     */
    void setRebuilding(PoBase node, T value, Setter setter) {
        node.rebuilding(value, name, () -> kept = value, setter);
    }

    /** The Java object of the address the node holds (0: null), the one kept when it is that one. */
    T get(long address) {
        return JavaViews.find(type, address, kept);
    }
}
