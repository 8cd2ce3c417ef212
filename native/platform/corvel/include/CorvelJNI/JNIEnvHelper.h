// The JNI environment of the calling thread.
//
// getEnv() works on any thread: a thread the Java virtual machine does not
// know yet is attached as a daemon thread and detached again automatically
// when it ends. It returns null only when no Java virtual machine runs.
#pragma once

#include <Corvel/StandIn.h>

#include <jni.h>

class JNIEnvHelper {
 public:
  static JNIEnv* getEnv();
  TAVREL_STANDIN_ONLY static JavaVM* getJavaVM();
};
