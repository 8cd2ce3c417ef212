package com.kestrum.tavrel.testkit;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.lang.reflect.Field;
import org.junit.jupiter.api.Test;

/** A child JVM tells a clean run from a crash. */
class ChildJvmTest {
    /** Exits normally, or with "crash" writes to address 0 (a real SIGSEGV in the child). */
    public static void main(String[] args) throws Exception {
        System.out.println("child running");
        if (args.length > 0 && args[0].equals("crash")) {
            Field f = Class.forName("sun.misc.Unsafe").getDeclaredField("theUnsafe");
            f.setAccessible(true);
            sun.misc.Unsafe unsafe = (sun.misc.Unsafe) f.get(null);
            unsafe.putAddress(0, 42);
        }
    }

    @Test
    void cleanRunIsNotACrash() throws Exception {
        ChildJvm.Result r = ChildJvm.run(ChildJvmTest.class);
        assertEquals(0, r.exitCode(), r::describe);
        assertFalse(r.crashed(), r::describe);
        assertTrue(r.output().contains("child running"), r::describe);
    }

    @Test
    void segmentationFaultIsACrash() throws Exception {
        ChildJvm.Result r = ChildJvm.run(ChildJvmTest.class, "crash");
        assertTrue(r.crashed(), r::describe);
        assertNotNull(r.errorFile(), r::describe);
    }
}
