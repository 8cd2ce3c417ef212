package com.kestrum.tavrel.testkit;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.api.Assumptions.assumeTrue;

import java.util.List;
import org.junit.jupiter.api.Test;

/** The watch on JNI warnings sees what -Xcheck:jni prints, on every JDK the suite runs on. */
class JniWarningsTest {
    private static String onlyWarning() {
        List<String> warnings = JniWarnings.take();
        assertEquals(1, warnings.size(), warnings.toString());
        return warnings.get(0);
    }

    @Test
    void aCallWithAnExceptionPendingIsSeen() {
        JniWarnings.provokeExceptionPendingWarning();
        String warning = onlyWarning();
        assertTrue(warning.startsWith("WARNING in native method: JNI call made with exception pending"), warning);
    }

    /**
     * JDK 20 and newer no longer report local-reference overflow under -Xcheck:jni (the check
     * was dropped from the JVM), so there this warning cannot be provoked; the call with an
     * exception pending above proves the watch on every JDK.
     */
    @Test
    void aLocalReferenceLeakIsSeen() {
        assumeTrue(Runtime.version().feature() < 20,
                "JDK " + Runtime.version().feature() + " does not report local-reference overflow under -Xcheck:jni");
        JniWarnings.provokeLocalReferenceWarning();
        String warning = onlyWarning();
        assertTrue(warning.startsWith("WARNING: JNI local refs"), warning);
    }
}
