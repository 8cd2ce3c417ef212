package com.kestrum.tavrel.testkit;

import java.lang.management.ManagementFactory;
import java.util.List;
import org.junit.jupiter.api.extension.AfterAllCallback;
import org.junit.jupiter.api.extension.AfterEachCallback;
import org.junit.jupiter.api.extension.BeforeAllCallback;
import org.junit.jupiter.api.extension.ExtensionContext;

/**
 * Fails a test during which the JVM printed a JNI warning (-Xcheck:jni), and refuses to run
 * without -Xcheck:jni. Registered for every test class.
 */
public final class JniCheckExtension implements BeforeAllCallback, AfterEachCallback, AfterAllCallback {
    @Override
    public void beforeAll(ExtensionContext context) {
        List<String> args = ManagementFactory.getRuntimeMXBean().getInputArguments();
        if (!args.contains("-Xcheck:jni")) {
            throw new IllegalStateException("The tests must run with -Xcheck:jni");
        }
        if (!JniWarnings.install()) {
            throw new IllegalStateException("Cannot watch the JVM's output for JNI warnings");
        }
        check("before " + context.getDisplayName());
    }

    @Override
    public void afterEach(ExtensionContext context) {
        check(context.getDisplayName());
    }

    @Override
    public void afterAll(ExtensionContext context) {
        check("after " + context.getDisplayName());
    }

    private static void check(String where) {
        List<String> warnings = JniWarnings.take();
        if (!warnings.isEmpty()) {
            throw new AssertionError("JNI warnings during " + where + ":\n  " + String.join("\n  ", warnings));
        }
    }
}
