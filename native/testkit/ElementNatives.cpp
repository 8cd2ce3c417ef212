// com.kestrum.tavrel.testkit.Elements: calls of elements' virtual operations
// as the toolkit's caches make them (which reach the Java overrides of Java
// elements), the access interface's operations as the binding core calls
// them, and a state made and dropped outside any action.

#include <jni.h>

#include <Corvel/SoElement.h>
#include <Corvel/SoState.h>
#include <CorvelJNI/ProtectedMethodAccess.h>

#include <cstdint>

namespace {
template <class T = SoElement>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}
jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }
ISoElementProtectedMethodAccess* access(jlong element) {
  return dynamic_cast<ISoElementProtectedMethodAccess*>(from(element));
}
}  // namespace

extern "C" {

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Elements_matches(JNIEnv*, jclass, jlong element,
                                                                           jlong other) {
  return from(element)->matches(from(other)) ? JNI_TRUE : JNI_FALSE;
}

// The element's virtual push, pop (with itself as the previous top), init or
// captureThis with the state, as the state calls them: operation 0, 1, 2, 3.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Elements_stateOperation(JNIEnv*, jclass, jlong element,
                                                                              jlong state, jint operation) {
  SoElement* e = from(element);
  SoState* s = from<SoState>(state);
  switch (operation) {
    case 0: e->push(s); break;
    case 1: e->pop(s, e); break;
    case 2: e->init(s); break;
    default: e->captureThis(s); break;
  }
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Elements_copyMatchInfo(JNIEnv*, jclass, jlong element) {
  return handleOf(from(element)->copyMatchInfo());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Elements_isJavaElement(JNIEnv*, jclass, jlong element) {
  return access(element) != nullptr ? JNI_TRUE : JNI_FALSE;
}

// The popped flag after setPoppedDefaultImpl(value).
JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Elements_poppedAfterSetting(JNIEnv*, jclass, jlong element,
                                                                                      jint value) {
  ISoElementProtectedMethodAccess* a = access(element);
  a->setPoppedDefaultImpl(value);
  return a->isPoppedDefaultImpl() ? JNI_TRUE : JNI_FALSE;
}

// Calls captureDefaultImpl on a state made here with the cache flag given;
// returns the number of elements the state captured.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Elements_captureOnNewState(JNIEnv*, jclass, jlong element,
                                                                                 jboolean cacheOpen) {
  SoState state(nullptr);
  state.setCacheOpen(cacheOpen != JNI_FALSE);
  access(element)->captureDefaultImpl(&state);
  return static_cast<jint>(state.getCaptured().size());
}

// The top element of a stack of a live state, made on first use (0 when none
// could be made).
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Elements_topElement(JNIEnv*, jclass, jlong state,
                                                                           jint stackIndex) {
  return handleOf(from<SoState>(state)->getElement(stackIndex));
}

}  // extern "C"
