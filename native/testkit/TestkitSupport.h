// Small helpers shared by the test-only natives.
#pragma once

#include <jni.h>

#include <string>
#include <vector>

namespace testkit {
// A new Java String[] holding the lines.
jobjectArray toJavaStrings(JNIEnv* env, const std::vector<std::string>& lines);
}  // namespace testkit
