// Results handed back to Java: strings, output arrays and direct buffers.
#pragma once

#include <jni.h>

#include <Corvel/SbBox.h>
#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <cstddef>

namespace tavrel {

// A toolkit string that may be missing: null for a null pointer.
inline jstring toJavaString(JNIEnv* env, const SbString* text) {
  return text == nullptr ? nullptr : StringHelper::fromNativeString(env, *text);
}

// Writes count values into elements 0.. of an output array. The values reach
// the Java array when this returns (the helper copies them back).
template <class T, class JArray>
inline void writeOutput(JNIEnv* env, JArray out, const T* values, int count) {
  ArrayHelper helper(env);
  auto* target = helper.toNativeArray(out, ArrayHelper::ReadWrite);
  for (int i = 0; i < count; ++i) target[i] = values[i];
}

inline void writeOutput(JNIEnv* env, jfloatArray out, float value) { writeOutput(env, out, &value, 1); }
inline void writeOutput(JNIEnv* env, jintArray out, int value) { writeOutput(env, out, &value, 1); }

// A toolkit int flag into element 0 of the native elements of a boolean
// output, whatever their type (int-wide, jboolean or bool): 1 when the flag is
// non-zero, else 0, so that no bit of the flag is lost in a narrower element.
template <class Element>
inline void storeFlag(Element* elements, int flag) {
  elements[0] = static_cast<Element>(flag != 0 ? 1 : 0);
}

// A toolkit int flag into element 0 of a boolean output (storeFlag).
inline void writeOutput(JNIEnv* env, jbooleanArray out, int flag) {
  ArrayHelper helper(env);
  storeFlag(helper.toNativeArray(out, ArrayHelper::ReadWrite), flag);
}

// A char into element 0 of a byte output (its bits unchanged).
inline void writeOutput(JNIEnv* env, jbyteArray out, char value) {
  const jbyte b = static_cast<jbyte>(value);
  writeOutput(env, out, &b, 1);
}

// A vector into out[0..2] (or out[0..1]).
inline void writeOutput(JNIEnv* env, jfloatArray out, const SbVec3f& v) { writeOutput(env, out, v.getValue(), 3); }
inline void writeOutput(JNIEnv* env, jfloatArray out, const SbVec2f& v) { writeOutput(env, out, v.getValue(), 2); }

// A box as its floats in memory order: 6 for SbBox3f, 4 for SbBox2f.
inline void writeOutput(JNIEnv* env, jfloatArray out, const SbBox3f& box) {
  writeOutput(env, out, reinterpret_cast<const float*>(&box), 6);
}
inline void writeOutput(JNIEnv* env, jfloatArray out, const SbBox2f& box) {
  writeOutput(env, out, reinterpret_cast<const float*>(&box), 4);
}

// A direct byte buffer over toolkit memory, without a copy; null when the
// toolkit has no such data.
inline jobject directBuffer(JNIEnv* env, const void* address, std::size_t bytes) {
  if (address == nullptr) return nullptr;
  return env->NewDirectByteBuffer(const_cast<void*>(address), static_cast<jlong>(bytes));
}

// A toolkit list returned as a new Java array of its count floats, the count
// going into num[0] first. A null list gives a null array.
inline jfloatArray countedList(JNIEnv* env, jintArray num, const float* list, int count) {
  writeOutput(env, num, count);
  return ArrayHelper::fromNativeArray(env, list, static_cast<unsigned long>(count));
}

// A toolkit list shown as a direct buffer of count elements of elementSize
// bytes (null for a null list), the count going into num[0].
inline jobject countedBuffer(JNIEnv* env, jintArray num, const void* list, int count, std::size_t elementSize) {
  jobject buffer = directBuffer(env, list, elementSize * static_cast<std::size_t>(count));
  writeOutput(env, num, count);
  return buffer;
}

// Stores a direct buffer over the memory (or null) into element 0 of an
// Object[] output array.
inline void storeDirectBuffer(JNIEnv* env, jobjectArray out, const void* address, std::size_t bytes) {
  jobject buffer = directBuffer(env, address, bytes);
  env->SetObjectArrayElement(out, 0, buffer);
  if (buffer != nullptr) env->DeleteLocalRef(buffer);
}

}  // namespace tavrel
