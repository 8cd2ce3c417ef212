package com.kestrum.tavrel.internal;

import java.util.function.ToIntFunction;

/** What the enumerations of the toolkit's values share. */
public final class Enums {
    private Enums() {}

    /**
     * The constant with the toolkit's value, or null: each enumeration's {@code fromValue}.
     *
     * @param <E> the enumeration
     * @param constants the enumeration's constants
     * @param valueOf the toolkit's value of a constant
     * @param value the toolkit's value
     * @return the first of {@code constants} with the toolkit's value, or null
     */
    public static <E extends Enum<E>> E fromValue(E[] constants, ToIntFunction<? super E> valueOf, int value) {
        for (E c : constants) {
            if (valueOf.applyAsInt(c) == value) {
                return c;
            }
        }
        return null;
    }
}
