// Conversion of a Java array of vector objects (SbVec2f, SbVec3f, SbColor)
// into a native array of the toolkit's vector type T.
//
// Each Java vector keeps its components in its float[] field "array"; T is K
// contiguous floats (K = 2 or 3). A null array, an empty one, or one whose
// element 0 is null gives a null pointer. Otherwise the field is looked up
// once, on the class of element 0, and each element is copied in order,
// releasing its two local references at once so that any length stays within
// the local-reference capacity. The native array is value-initialised, owned
// by the helper and freed with delete[] when the helper is destroyed (also
// when the toolkit throws).
#pragma once

#include <jni.h>

template <class T>
class FloatLayoutedArrayTypeArrayHelper {
 public:
  static constexpr int kComponents = static_cast<int>(sizeof(T) / sizeof(float));
  static_assert(sizeof(T) == kComponents * sizeof(float), "T must be made of floats only");

  FloatLayoutedArrayTypeArrayHelper(JNIEnv* env, jobjectArray vectors) : env(env), vectors(vectors) {}
  virtual ~FloatLayoutedArrayTypeArrayHelper() { delete[] nativeArray; }
  FloatLayoutedArrayTypeArrayHelper(const FloatLayoutedArrayTypeArrayHelper&) = delete;
  FloatLayoutedArrayTypeArrayHelper& operator=(const FloatLayoutedArrayTypeArrayHelper&) = delete;

  // The native array (converted on the first call), or null.
  const T* toNativeArray() {
    if (!converted) convert();
    return nativeArray;
  }

  // Number of elements of the Java array (0 for null).
  jsize getLength() const { return length; }

 private:
  void convert() {
    converted = true;
    if (vectors == nullptr) return;
    length = env->GetArrayLength(vectors);
    if (length == 0) return;
    jobject first = env->GetObjectArrayElement(vectors, 0);
    if (first == nullptr) return;
    jclass vectorClass = env->GetObjectClass(first);
    jfieldID arrayField = env->GetFieldID(vectorClass, "array", "[F");
    env->DeleteLocalRef(vectorClass);
    env->DeleteLocalRef(first);

    nativeArray = new T[length]();
    float* out = reinterpret_cast<float*>(nativeArray);
    for (jsize i = 0; i < length; ++i) {
      jobject element = env->GetObjectArrayElement(vectors, i);
      jfloatArray floats = static_cast<jfloatArray>(env->GetObjectField(element, arrayField));
      jfloat* components = env->GetFloatArrayElements(floats, nullptr);
      for (int k = 0; k < kComponents; ++k) out[i * kComponents + k] = components[k];
      env->ReleaseFloatArrayElements(floats, components, JNI_ABORT);
      env->DeleteLocalRef(floats);
      env->DeleteLocalRef(element);
    }
  }

  JNIEnv* env;
  jobjectArray vectors;
  jsize length = 0;
  T* nativeArray = nullptr;
  bool converted = false;
};
