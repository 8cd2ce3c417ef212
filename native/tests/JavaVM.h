// The Java virtual machine that the native tests run in.
#pragma once

#include <jni.h>

namespace nativetest {
JNIEnv* env();
// Runs System.gc() a few times.
void collectGarbage();
}  // namespace nativetest
