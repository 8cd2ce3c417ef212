package com.kestrum.tavrel.nodes;

/**
 * The toolkit operations that a Java node or cell filter has no toolkit implementation of
 * ({@code PoNode.doAction}, {@code PoCellFilter.acceptCell}): their native methods refuse with a
 * checked {@link IllegalAccessException}, which the public methods turn into an
 * {@link UnsupportedOperationException} that callers can catch by name, with the refusal as its
 * cause.
 */
final class ToolkitRefusals {
    private ToolkitRefusals() {}

    /** A native call that the toolkit may refuse. */
    @FunctionalInterface
    interface RefusableCall<R> {
        R call() throws IllegalAccessException;
    }

    /**
     * Runs the call; a refusal becomes an {@link UnsupportedOperationException} naming the
     * operation, with the refusal as its cause.
     */
    static <R> R unlessRefused(String operation, RefusableCall<R> call) {
        try {
            return call.call();
        } catch (IllegalAccessException refusal) {
            throw new UnsupportedOperationException(operation + " has no toolkit implementation: a Java class must"
                    + " override it (" + refusal.getMessage() + ")", refusal);
        }
    }
}
