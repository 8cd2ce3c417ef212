// Shapes shared by the axis classes: constructor arguments (points given as
// float arrays, UTF-8 titles and labels, decade lists) and the outputs that
// several axis classes share (multiplying factor, log graduation, strings and
// unsigned shorts stored into element 0).
#pragma once

#include <jni.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <optional>

#include "common/Handles.h"
#include "common/Results.h"

namespace tavrel {

// The arguments of one axis constructor, converted in the order they are
// asked for, before the node is allocated: points ReadWrite (the toolkit
// reads the array's buffer as the vector; the array is copied back
// unchanged), decade lists ReadOnly as unsigned shorts, strings as UTF-8. Two
// ArrayHelpers are made first, the first for the first array converted, the
// second for the next. Everything is released when the object is destroyed:
// the string-array helper, the string helpers, then the array helpers.
class AxisArguments {
 public:
  explicit AxisArguments(JNIEnv* env) : env(env), first(env), second(env) {}

  const SbVec3f& vec3(jfloatArray point) {
    return *reinterpret_cast<const SbVec3f*>(nextArrays().toNativeArray(point, ArrayHelper::ReadWrite));
  }
  const SbVec2f& vec2(jfloatArray point) {
    return *reinterpret_cast<const SbVec2f*>(nextArrays().toNativeArray(point, ArrayHelper::ReadWrite));
  }
  const unsigned short* decades(jshortArray list) {
    return nextArrays().toUnsignedNativeArray(list, ArrayHelper::ReadOnly);
  }
  const char* text(jstring s) { return texts[used++].emplace(env, s).toUTFString(); }
  const char** strings(jobjectArray list) { return labels.emplace(env, list).toUTFStringArray(); }

 private:
  ArrayHelper& nextArrays() { return arrays++ == 0 ? first : second; }

  JNIEnv* env;
  ArrayHelper first;
  ArrayHelper second;
  int arrays = 0;
  std::optional<StringHelper> texts[3];
  int used = 0;
  std::optional<StringArrayHelper> labels;
};

// A count the toolkit takes as a short: the low 16 bits of the int.
inline short narrowCount(jint count) { return static_cast<short>(count); }

// Constructor function: make(arguments) converts what it needs, in order,
// then allocates and returns the new node.
template <class Make>
inline jlong constructAxis(JNIEnv* env, Make make) {
  AxisArguments in(env);
  return toHandle(make(in));
}

// A toolkit string stored as a new Java string at index 0 of a String[].
inline void storeString(JNIEnv* env, jobjectArray out, const SbString& text) {
  jstring s = StringHelper::fromNativeString(env, text);
  env->SetObjectArrayElement(out, 0, s);
  env->DeleteLocalRef(s);
}

// Unsigned shorts into element 0 of their short[] outputs, in order.
template <std::size_t N>
inline void writeUnsigned(JNIEnv* env, const jshortArray (&outs)[N], const unsigned short (&values)[N]) {
  ArrayHelper helper(env);
  for (std::size_t i = 0; i < N; ++i) helper.toUnsignedNativeArray(outs[i], ArrayHelper::ReadWrite)[0] = values[i];
}

// getMultFactor(position, factor) of an axis class into element 0 of its
// two outputs.
template <class Axis>
inline void multFactor(JNIEnv* env, jlong handle, jintArray position, jfloatArray factor) {
  typename Axis::MultFactorPosition p{};
  float f = 0.0f;
  fromHandle<const Axis>(handle)->getMultFactor(p, f);
  writeOutput(env, position, static_cast<int>(p));
  writeOutput(env, factor, f);
}

// getLogGrad of a logarithmic axis class: the decades output's buffer is the
// list the toolkit fills (copied back when its helper goes, last); the count
// (16 bits), the two representations, the string and the float go into
// element 0 of their outputs.
template <class Axis>
inline void logGrad(JNIEnv* env, jlong handle, jshortArray count, jshortArray decades, jintArray tenPowerRep,
                    jintArray decadeRep, jobjectArray text, jfloatArray value) {
  ArrayHelper list(env);
  unsigned short* buffer = list.toUnsignedNativeArray(decades, ArrayHelper::ReadWrite);
  short n = 0;
  typename Axis::TenPowGradRep tenPower{};
  typename Axis::DecadeRep decade{};
  SbString s;
  float f = 0.0f;
  fromHandle<const Axis>(handle)->getLogGrad(n, buffer, tenPower, decade, s, f);
  writeUnsigned(env, {count}, {static_cast<unsigned short>(n)});
  writeOutput(env, tenPowerRep, static_cast<int>(tenPower));
  writeOutput(env, decadeRep, static_cast<int>(decade));
  storeString(env, text, s);
  writeOutput(env, value, f);
}

// An int (a visibility or margin type) and two floats into element 0 of
// their outputs, in order.
inline void visibilityAndFloats(JNIEnv* env, int value, float f1, float f2, jintArray out, jfloatArray out1,
                                jfloatArray out2) {
  writeOutput(env, out, value);
  writeOutput(env, out1, f1);
  writeOutput(env, out2, f2);
}

}  // namespace tavrel
