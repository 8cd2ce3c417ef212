// Product identification of the extension, and its resource handle.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PoTavrel.h>

#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_PoTavrel_getProductNameImpl(JNIEnv* env, jclass) {
  return StringHelper::fromNativeString(env, PoTavrel::getProductName());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_PoTavrel_getVersionImpl(JNIEnv* env, jclass) {
  return StringHelper::fromNativeString(env, PoTavrel::getVersion());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_PoTavrel_00024NativeResourceHandle_deleteNativeHandleImpl(JNIEnv*,
                                                                                                         jclass,
                                                                                                         jlong handle) {
  tavrel::deleteHandle<PoTavrel>(handle);
}

}  // extern "C"
