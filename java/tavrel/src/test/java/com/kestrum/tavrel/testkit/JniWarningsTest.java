package com.kestrum.tavrel.testkit;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.util.List;
import org.junit.jupiter.api.Test;

/** The watch on JNI warnings sees what -Xcheck:jni prints. */
class JniWarningsTest {
    @Test
    void aLocalReferenceLeakIsSeen() {
        JniWarnings.provokeLocalReferenceWarning();
        List<String> warnings = JniWarnings.take();
        assertEquals(1, warnings.size(), warnings.toString());
        assertTrue(warnings.get(0).startsWith("WARNING: JNI local refs"), warnings.get(0));
    }
}
