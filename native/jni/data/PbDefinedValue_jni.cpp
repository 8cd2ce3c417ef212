// com.kestrum.tavrel.data.PbDefinedValue and its resource handle.

#include <jni.h>

#include <Tavrel/PbDefinedValue.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbDefinedValue_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbDefinedValue>();
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbDefinedValue_getUndefImpl(JNIEnv*, jobject, jlong handle,
                                                                                   jint i) {
  return tavrel::fromHandle<PbDefinedValue>(handle)->getUndef(i);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbDefinedValue_00024NativeResourceHandle_deleteNativeHandleImpl(
    JNIEnv*, jclass, jlong handle) {
  tavrel::deleteHandle<PbDefinedValue>(handle);
}

}  // extern "C"
