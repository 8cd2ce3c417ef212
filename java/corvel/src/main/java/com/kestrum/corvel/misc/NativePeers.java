package com.kestrum.corvel.misc;

/**
 * Records Java peers in native objects whose first part holds a peer reference (the callback
 * bridges). The native object keeps a weak reference: it does not keep the peer alive, and
 * sees it gone once it has been collected.
 */
public final class NativePeers {
    static {
        CorvelNative.ensureLoaded();
    }

    private NativePeers() {}

    /**
     * Binds {@code peer} to the native object at {@code address} (non-zero).
     *
     * @param address the address of the native object
     * @param peer the Java object
     */
    public static void bindPeer(long address, Object peer) {
        if (address == 0) {
            throw new IllegalArgumentException("address is 0");
        }
        Arguments.notNull(peer, "peer");
        bindPeerNative(address, peer);
    }

    private static native void bindPeerNative(long address, Object peer);
}
