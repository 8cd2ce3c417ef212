// com.kestrum.tavrel.graph.PbBase: the connection flag, touch, and the
// release of a Java handle, which frees nothing (attribute objects are never
// deleted by this library; nodes may still use them).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbBase.h>

#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbBase_enableConnectionImpl(JNIEnv*, jobject, jlong handle,
                                                                               jboolean flag) {
  fromHandle<PbBase>(handle)->enableConnection(tavrel::toFlag(flag));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbBase_isConnectionEnabledImpl(JNIEnv*, jobject,
                                                                                      jlong handle) {
  return tavrel::toJBoolean(fromHandle<PbBase>(handle)->isConnectionEnabled());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbBase_touchImpl(JNIEnv*, jobject, jlong handle) {
  fromHandle<PbBase>(handle)->touch();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbBase_00024NativeResourceHandle_deleteNativeHandleImpl(JNIEnv*,
                                                                                                        jclass,
                                                                                                        jlong) {}

}  // extern "C"
