// Natives of com.kestrum.corvel.nodes.SoNode: the reference its Java object
// holds on the native node, and inspection.

#include <jni.h>

#include <Corvel/SoNode.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>

namespace {
SoNode* node(jlong handle) { return reinterpret_cast<SoNode*>(static_cast<std::intptr_t>(handle)); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_refNative(JNIEnv*, jclass, jlong handle) {
  node(handle)->ref();
  return handle;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_unrefNative(JNIEnv*, jclass, jlong handle) {
  node(handle)->unref();
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_nodes_SoNode_getRefCountNative(JNIEnv*, jclass, jlong handle) {
  return node(handle)->getRefCount();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_nodes_SoNode_getTypeNameNative(JNIEnv* env, jclass, jlong handle) {
  return StringHelper::fromNativeString(env, node(handle)->getTypeId().getName());
}

}  // extern "C"
