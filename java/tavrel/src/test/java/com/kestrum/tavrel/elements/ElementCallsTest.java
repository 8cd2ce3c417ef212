package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;

import static com.kestrum.tavrel.testkit.CoreCalls.GET_ENV;
import static com.kestrum.tavrel.testkit.CoreCalls.registeredPeer;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.testkit.Elements;
import com.kestrum.tavrel.testkit.JniCalls;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.util.List;
import org.junit.jupiter.api.Test;

/**
 * The JNI calls of the element entry points: the protected-method guard of initImpl, and the
 * global reference to an element's peer, made once when it is bound and deleted once when the
 * element goes (with its Java object, or with the traversal state that made it).
 */
class ElementCallsTest {
    static final class ElementCallsElement extends PoIsovaluesListElement {}

    /** Answers the cache operations itself: matches is true, copyMatchInfo gives the element itself. */
    static final class ElementCallsAnswering extends PoIsovaluesListElement {
        @Override
        public boolean matches(SoElement element) {
            return true;
        }

        @Override
        public SoElement copyMatchInfo() {
            return this;
        }
    }

    /**
     * A forwarded operation: the environment, the peer's local reference, the argument's Java
     * object (a registered peer here, found without a call into Java), the one Java call, the exception check (or the result's handle), the local
     * references deleted.
     */
    @Test
    void forwardedCacheOperationsMakeTheNodesSequence() {
        try (ElementCallsAnswering element = new ElementCallsAnswering()) {
            long h = element.getNativeResourceHandleInternal();
            Elements.matches(h, h);
            List<String> matches = JniCalls.record(() -> Elements.matches(h, h)).calls();
            assertEquals(sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                    registeredPeer("com.kestrum.corvel.elements.SoElement"),
                    "CallBooleanMethodV(matches(Lcom/kestrum/corvel/elements/SoElement;)Z) -> true",
                    "ExceptionOccurred() -> null", "DeleteLocalRef()", "DeleteLocalRef()"), matches);
            Elements.copyMatchInfo(h);
            List<String> copy = JniCalls.record(() -> Elements.copyMatchInfo(h)).calls();
            assertEquals(sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                    "CallObjectMethodV(copyMatchInfo()Lcom/kestrum/corvel/elements/SoElement;)",
                    "ExceptionCheck() -> false", "CallLongMethodV(getNativeResourceHandleInternal()J) -> " + h,
                    "DeleteLocalRef()", "DeleteLocalRef()"), copy);
        }
    }

    private static void initImpl(long element, long state) throws Throwable {
        Method m = PoIsovaluesListElement.class.getDeclaredMethod("initImpl", long.class, long.class);
        m.setAccessible(true);
        try {
            m.invoke(null, element, state);
        } catch (InvocationTargetException e) {
            throw e.getCause();
        }
    }

    /** On 0 and on a toolkit element: FindClass and ThrowNew, and nothing else. */
    @Test
    void initImplRefusesWithOneExceptionAndNothingElse() {
        List<String> refusal = List.of(
                "FindClass(\"java/lang/IllegalAccessException\") -> Ljava/lang/IllegalAccessException;",
                "ThrowNew(Ljava/lang/IllegalAccessException;, \"Call of protected methods not allowed.\") -> 0");
        Traversal.run(state -> {
            long s = state.getNativeResourceHandleInternal();
            long plain = Elements.topElement(s, PoIsovaluesListElement.getClassStackIndex());
            for (long target : new long[] {0L, plain}) {
                JniCalls.recordThrowing(() -> initImpl(target, s));
                JniCalls.Recording r = JniCalls.recordThrowing(() -> initImpl(target, s));
                assertInstanceOf(IllegalAccessException.class, r.thrown());
                assertEquals(refusal, r.calls());
            }
        });
    }

    /** On a Java element: the toolkit's init, without a JNI call. */
    @Test
    void initImplOfAJavaElementMakesNoJniCall() {
        try (ElementCallsElement element = new ElementCallsElement()) {
            Traversal.run((SoState state) -> {
                long s = state.getNativeResourceHandleInternal();
                long e = element.getNativeResourceHandleInternal();
                assertEquals(List.of(), JniCalls.record(() -> initImpl(e, s)).calls());
            });
        }
    }

    @Test
    void anElementMadeInJavaDeletesItsPeerReferenceOnceWhenDisposed() {
        new ElementCallsElement().dispose();
        JniCalls.Recording made = JniCalls.record(() -> new ElementCallsElement().dispose());
        assertEquals(List.of("NewGlobalRef()", "DeleteGlobalRef()"), made.callsOf("NewGlobalRef", "DeleteGlobalRef"));
        assertEquals(1, made.globalReferencesCreated());
        assertEquals(1, made.globalReferencesDeleted());
    }

    /** Two elements made by the state (a bottom one and one pushed by the separator): two references made and deleted. */
    @Test
    void elementsMadeByAStateDeleteTheirPeerReferencesOnceWithIt() {
        try (ElementCallsElement registered = new ElementCallsElement()) {
            SoAction.enableElement(registered.getTypeName(), registered.getStackIndex());
        }
        Traversal.StateNode setter = new Traversal.StateNode((s, n) -> PoIsovaluesListElement.set(s, n, null));
        try (SoGroup root = new SoGroup(); SoSeparator separator = new SoSeparator()) {
            root.addChild(setter);
            root.addChild(separator);
            separator.addChild(setter);
            Traversal.apply(root, setter);
            JniCalls.Recording r = JniCalls.record(() -> Traversal.apply(root, setter));
            assertEquals(2, r.globalReferencesCreated());
            assertEquals(2, r.globalReferencesDeleted());
        } finally {
            setter.dispose();
            SoAction.enableElement(PoIsovaluesListElement.getClassTypeName(), PoIsovaluesListElement.getClassStackIndex());
        }
    }
}
