package com.kestrum.tavrel.internal;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import org.junit.jupiter.api.Test;

class JavaViewsTest {
    private static final class Viewed extends NativeObject {
        Viewed(long handle) {
            super(handle);
        }
    }

    private static final class NoFactory extends NativeObject {
        NoFactory(long handle) {
            super(handle);
        }
    }

    @Test
    void rememberedObjectThenPeerThenNewViewThenNothing() {
        ManagedObjects.registerWrapper(Viewed.class.getName(), Viewed::new);
        long address = 0x5a0000L;
        try {
            assertNull(JavaViews.find(Viewed.class, 0, new Viewed(0)));

            Viewed remembered = new Viewed(address);
            assertSame(remembered, JavaViews.find(Viewed.class, address, remembered));

            Viewed peer = new Viewed(address + 8);
            ManagedObjects.registerPeer(address + 8, peer);
            assertSame(peer, JavaViews.find(Viewed.class, address + 8, remembered), "remembered has another address");

            Viewed view = JavaViews.find(Viewed.class, address + 16, null);
            assertEquals(address + 16, view.getNativeResourceHandleInternal());
            assertNotSame(view, JavaViews.find(Viewed.class, address + 16, null), "views are not remembered");

            peer.dispose();
            Viewed replacement = JavaViews.find(Viewed.class, address + 8, null);
            assertNotSame(peer, replacement, "a disposed peer is not handed out");

            ManagedObjects.registerPeer(address + 24, new Viewed(address + 24));
            assertNull(JavaViews.find(NoFactory.class, address + 24, null), "a peer of another class, no factory");
        } finally {
            for (long a = address; a <= address + 24; a += 8) {
                ManagedObjects.unregisterPeer(a);
            }
        }
    }
}
