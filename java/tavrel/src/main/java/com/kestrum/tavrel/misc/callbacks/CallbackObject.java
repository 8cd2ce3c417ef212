package com.kestrum.tavrel.misc.callbacks;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.NativePeers;
import java.util.function.LongSupplier;

/**
 * Base of the Java callback objects: the listener that receives the events, the user data of the
 * latest registration, and the native bridge whose address is this object's handle.
 *
 * <p>Native registration stores the user data in the field "userData"; the bridge calls the
 * subclass's method "invokeNativ". The bridge holds this object only weakly and is never freed.
 *
 * @param <L> the listener type
 */
public abstract class CallbackObject<L> extends NativeObject {
    // Written by native registration code.
    private volatile Object userData;
    private final L listener;

    /**
     * Makes the native bridge with {@code newBridge} (after checking the listener) and binds this
     * object to it as its Java callback object.
     *
     * @param listener the listener
     * @param newBridge makes the native bridge and returns its address
     */
    protected CallbackObject(L listener, LongSupplier newBridge) {
        super(makeBridge(listener, newBridge));
        this.listener = listener;
        NativePeers.bindPeer(getNativeResourceHandleInternal(), this);
    }

    private static long makeBridge(Object listener, LongSupplier newBridge) {
        if (listener == null) {
            throw new NullPointerException("listener is null");
        }
        return newBridge.getAsLong();
    }

    /**
     * The user data of the latest registration, or null.
     *
     * @return the user data of the latest registration, or null
     */
    public final Object getUserData() {
        return userData;
    }

    /**
     * The listener that receives the events, as given to the constructor.
     *
     * @return the listener that receives the events, as given to the constructor
     */
    public final L getListener() {
        return listener;
    }
}
