// com.kestrum.tavrel.testkit.Marshal: runs the binding's vector-array
// conversion and the binding core's array conversions on Java arrays and
// shows the native result.

#include <jni.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>

#include "common/FloatLayoutedArrayTypeArrayHelper.h"

namespace {
// The native array as a Java float[] (k floats per vector), or null.
template <class T>
jfloatArray vectorsToFloats(JNIEnv* env, jobjectArray vectors) {
  FloatLayoutedArrayTypeArrayHelper<T> helper(env, vectors);
  const T* data = helper.toNativeArray();
  if (data == nullptr) return nullptr;
  return ArrayHelper::fromNativeArray(env, reinterpret_cast<const float*>(data),
                                      static_cast<unsigned long>(helper.getLength()) *
                                          FloatLayoutedArrayTypeArrayHelper<T>::kComponents);
}
}  // namespace

extern "C" {

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Marshal_vec2fArray(JNIEnv* env, jclass, jobjectArray v) {
  return vectorsToFloats<SbVec2f>(env, v);
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Marshal_vec3fArray(JNIEnv* env, jclass, jobjectArray v) {
  return vectorsToFloats<SbVec3f>(env, v);
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Marshal_colorArray(JNIEnv* env, jclass, jobjectArray v) {
  return vectorsToFloats<SbColor>(env, v);
}

// Sum of the components (a conversion without a result array, for large inputs).
JNIEXPORT jdouble JNICALL Java_com_kestrum_tavrel_testkit_Marshal_vec3fSum(JNIEnv* env, jclass, jobjectArray v) {
  FloatLayoutedArrayTypeArrayHelper<SbVec3f> helper(env, v);
  const SbVec3f* data = helper.toNativeArray();
  double sum = 0;
  for (jsize i = 0; data != nullptr && i < helper.getLength(); ++i) sum += data[i][0] + data[i][1] + data[i][2];
  return sum;
}

}  // extern "C"
