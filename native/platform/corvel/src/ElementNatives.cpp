// Natives of com.kestrum.corvel.elements.SoElement and the traversal-state
// natives of com.kestrum.corvel.misc.SoState and com.kestrum.corvel.actions.SoAction.
//
// The defaults run the toolkit's own behaviour. For a Java-extended element
// (one with the element access interface) the element's virtual operation is
// the one that calls Java, so the default goes through the interface, which
// runs the toolkit's implementation; for any other element it calls the
// virtual operation (or reads the member through a toolkit accessor).

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoElement.h>
#include <Corvel/SoState.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>

namespace {
template <class T>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }

ISoElementProtectedMethodAccess* access(SoElement* e) { return dynamic_cast<ISoElementProtectedMethodAccess*>(e); }

// The protected members a plain element shows only to its state's code.
class ElementAccess : public SoElement {
 public:
  static bool popped(const SoElement* e) { return static_cast<const ElementAccess*>(e)->SoElement::popped; }
  static SoElement* below(const SoElement* e) { return static_cast<const ElementAccess*>(e)->SoElement::nextInStack; }
  static void capture(const SoElement* e, SoState* s) { static_cast<const ElementAccess*>(e)->SoElement::capture(s); }
};
}  // namespace

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_corvel_elements_SoElement_deleteNative(JNIEnv*, jclass, jlong handle) {
  delete from<SoElement>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_elements_SoElement_initNative(JNIEnv*, jclass, jlong handle,
                                                                           jlong state) {
  SoElement* e = from<SoElement>(handle);
  if (auto* a = access(e))
    a->initDefaultImpl(from<SoState>(state));
  else
    e->init(from<SoState>(state));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_elements_SoElement_matchesNative(JNIEnv*, jclass, jlong handle,
                                                                                  jlong other) {
  SoElement* e = from<SoElement>(handle);
  auto* a = access(e);
  return (a != nullptr ? a->matchesDefaultImpl(from<SoElement>(other)) : e->matches(from<SoElement>(other))) ? JNI_TRUE
                                                                                                          : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_elements_SoElement_copyMatchInfoNative(JNIEnv*, jclass, jlong handle) {
  SoElement* e = from<SoElement>(handle);
  auto* a = access(e);
  return handleOf(a != nullptr ? a->copyMatchInfoDefaultImpl() : e->copyMatchInfo());
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_elements_SoElement_captureThisNative(JNIEnv*, jclass, jlong handle,
                                                                                  jlong state) {
  SoElement* e = from<SoElement>(handle);
  if (auto* a = access(e))
    a->captureThisDefaultImpl(from<SoState>(state));
  else
    e->captureThis(from<SoState>(state));
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_elements_SoElement_captureNative(JNIEnv*, jclass, jlong handle,
                                                                              jlong state) {
  SoElement* e = from<SoElement>(handle);
  if (auto* a = access(e))
    a->captureDefaultImpl(from<SoState>(state));
  else
    ElementAccess::capture(e, from<SoState>(state));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_elements_SoElement_isPoppedNative(JNIEnv*, jclass, jlong handle) {
  SoElement* e = from<SoElement>(handle);
  auto* a = access(e);
  return (a != nullptr ? a->isPoppedDefaultImpl() != 0 : ElementAccess::popped(e)) ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_elements_SoElement_getNextInStackNative(JNIEnv*, jclass,
                                                                                      jlong handle) {
  SoElement* e = from<SoElement>(handle);
  auto* a = access(e);
  return handleOf(a != nullptr ? a->getNextInStackDefaultImpl() : ElementAccess::below(e));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_elements_SoElement_getTypeNameNative(JNIEnv* env, jclass,
                                                                                     jlong handle) {
  return StringHelper::fromNativeString(env, from<SoElement>(handle)->getTypeId().getName());
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_elements_SoElement_getStackIndexNative(JNIEnv*, jclass, jlong handle) {
  return from<SoElement>(handle)->getClassStackIndexInternal();
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_elements_SoElement_getElementKeyNative(JNIEnv*, jclass, jlong handle) {
  return from<SoElement>(handle)->getElementKey();
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_misc_SoState_getDepthNative(JNIEnv*, jclass, jlong handle) {
  return from<SoState>(handle)->getDepth();
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_SoState_setCacheOpenNative(JNIEnv*, jclass, jlong handle,
                                                                             jboolean open) {
  from<SoState>(handle)->setCacheOpen(open != JNI_FALSE);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_misc_SoState_isCacheOpenNative(JNIEnv*, jclass, jlong handle) {
  return from<SoState>(handle)->isCacheOpen() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_misc_SoState_getNumCapturedNative(JNIEnv*, jclass, jlong handle) {
  return static_cast<jint>(from<SoState>(handle)->getCaptured().size());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_actions_SoAction_getStateNative(JNIEnv*, jclass, jlong handle) {
  return handleOf(from<SoAction>(handle)->getState());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_actions_SoAction_enableElementNative(JNIEnv* env, jclass,
                                                                                      jstring typeName,
                                                                                      jint stackIndex) {
  StringHelper name(env, typeName);
  return SoAction::enableElement(SoType::fromName(name.toUTFString()), stackIndex) ? JNI_TRUE : JNI_FALSE;
}

}  // extern "C"
