// The call from a callback bridge into its Java callback object.
#pragma once

#include <jni.h>

#include "common/DebugLine.h"
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>

#include "common/JavaPeer.h"

namespace tavrel {

// Calls the method "invokeNativ" with the signature on the bridge's Java
// callback object, passing the handles as jlong values, on the calling
// thread's environment.
//
// - An exception already pending on this thread (raised by the Java side of an
//   earlier event of the same native call) wins: nothing is called, since JNI
//   allows no call while it is pending, and the exception reaches Java when
//   the native call returns.
// - A callback object that has been collected is reported by a debug line and
//   nothing is called.
// - An exception raised by "invokeNativ" is left pending for Java.
// The method is looked up on every call; the local references made here are
// released before returning. The calls are listed in
// docs/jni-sequences.md.
template <class... Handles>
inline void invokeNativ(const ICustomClass& bridge, const char* signature, Handles... handles) {
  JNIEnv* env = JNIEnvHelper::getEnv();
  if (env == nullptr || env->ExceptionCheck()) return;
  jobject stored = javaPeerOf(bridge);
  jobject live = env->NewLocalRef(stored);
  if (live == nullptr) {
    tavrel::printDebug("DEBUG: Java callback object has been freed!\n");
    return;
  }
  jclass cls = env->GetObjectClass(stored);
  jmethodID method = env->GetMethodID(cls, "invokeNativ", signature);
  if (method != nullptr) env->CallVoidMethod(stored, method, static_cast<jlong>(handles)...);
  env->DeleteLocalRef(cls);
  env->DeleteLocalRef(live);
}

}  // namespace tavrel
