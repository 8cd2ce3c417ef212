// Natives of com.kestrum.corvel.actions.*, com.kestrum.corvel.fields.SoField
// and com.kestrum.corvel.SoInput.

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoField.h>
#include <Corvel/SoFieldContainer.h>
#include <Corvel/SoInput.h>
#include <Corvel/SoNode.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>
#include <cstring>

namespace {
template <class T>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }

template <class A>
SoAction* make() {
  return new A;
}

// The action classes Java can make, by Java class name.
struct ActionMaker {
  const char* javaName;
  SoAction* (*make)();
};
const ActionMaker kMakers[] = {
    {"SoGLRenderAction", make<SoGLRenderAction>},
    {"SoCallbackAction", make<SoCallbackAction>},
    {"SoGetBoundingBoxAction", make<SoGetBoundingBoxAction>},
    {"SoGetMatrixAction", make<SoGetMatrixAction>},
    {"SoHandleEventAction", make<SoHandleEventAction>},
    {"SoPickAction", make<SoPickAction>},
    {"SoRayPickAction", make<SoRayPickAction>},
    {"SoSearchAction", make<SoSearchAction>},
    {"SoWriteAction", make<SoWriteAction>},
    {"SoGetPrimitiveCountAction", make<SoGetPrimitiveCountAction>},
    {"SoDistributeAction", make<SoDistributeAction>},
};
}  // namespace

extern "C" {

// A new action of the named class, 0 for an unknown name.
JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_actions_SoAction_newActionNative(JNIEnv* env, jclass,
                                                                                jstring javaName) {
  StringHelper name(env, javaName);
  for (const ActionMaker& m : kMakers)
    if (std::strcmp(m.javaName, name.toUTFString()) == 0) return handleOf(m.make());
  return 0;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_actions_SoAction_deleteNative(JNIEnv*, jclass, jlong handle) {
  delete from<SoAction>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_actions_SoAction_applyNative(JNIEnv*, jclass, jlong handle,
                                                                            jlong node) {
  from<SoAction>(handle)->apply(from<SoNode>(node));
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_actions_SoAction_getNodesTraversedNative(JNIEnv*, jclass,
                                                                                        jlong handle) {
  return from<SoAction>(handle)->getNodesTraversed();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_actions_SoWriteAction_getOutputNative(JNIEnv* env, jclass,
                                                                                        jlong handle) {
  return StringHelper::fromNativeString(env, from<SoWriteAction>(handle)->getOutput().c_str());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_actions_SoGLRenderAction_toSvgNative(JNIEnv* env, jclass,
                                                                                       jlong handle) {
  return StringHelper::fromNativeString(env, from<SoGLRenderAction>(handle)->toSvg().c_str());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_fields_SoField_getNameNative(JNIEnv* env, jclass, jlong handle) {
  return StringHelper::fromNativeString(env, from<SoField>(handle)->getName());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_fields_SoField_getValueNative(JNIEnv* env, jclass, jlong handle) {
  return StringHelper::fromNativeString(env, from<SoField>(handle)->getValueString());
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_fields_SoField_setValueNative(JNIEnv* env, jclass, jlong handle,
                                                                           jstring value) {
  StringHelper text(env, value);
  from<SoField>(handle)->setValueString(SbString(text.toUTFString()));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_fields_SoField_isConnectedNative(JNIEnv*, jclass, jlong handle) {
  return from<SoField>(handle)->getConnectedField() != nullptr ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_fields_SoField_deleteNative(JNIEnv*, jclass, jlong handle) {
  delete from<SoField>(handle);
}

// A reference on the container of the field (a node), for a Java view of the
// field; its address, 0 for a field that belongs to no container.
JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_fields_SoField_refContainerNative(JNIEnv*, jclass, jlong handle) {
  SoFieldContainer* container = from<SoField>(handle)->getContainer();
  if (container != nullptr) container->ref();
  return handleOf(container);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_fields_SoField_unrefContainerNative(JNIEnv*, jclass,
                                                                                 jlong container) {
  from<SoFieldContainer>(container)->unref();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_SoInput_newNative(JNIEnv* env, jclass, jstring text) {
  StringHelper utf(env, text);
  return handleOf(new SoInput(utf.toUTFString()));
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_SoInput_deleteNative(JNIEnv*, jclass, jlong handle) {
  delete from<SoInput>(handle);
}

}  // extern "C"
