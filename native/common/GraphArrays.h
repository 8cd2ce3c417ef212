// Constructor functions of the graph nodes that take points, values, names
// and colours from Java: each argument is tagged with how it crosses, the
// conversions run left to right, the node is made from the results, and every
// conversion buffer is released after the constructor returns or throws.
#pragma once

#include <jni.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <forward_list>
#include <tuple>

#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

namespace tavrel {

// An array of Java vector objects taken as a native T array (null for a null
// or empty array, or one whose element 0 is null).
template <class T>
struct VectorObjects {
  jobjectArray array;
};
inline VectorObjects<SbVec2f> points2(jobjectArray a) { return {a}; }
inline VectorObjects<SbVec3f> points3(jobjectArray a) { return {a}; }
inline VectorObjects<SbColor> colors(jobjectArray a) { return {a}; }

// A Java String[] taken as native UTF-8 strings (char const**).
struct Utf8Strings {
  jobjectArray array;
};
inline Utf8Strings utf8(jobjectArray a) { return {a}; }

// A Java float[2] converted ReadWrite and taken as an SbVec2f.
struct Point2 {
  jfloatArray array;
};
inline Point2 point2(jfloatArray a) { return {a}; }

// A jint taken as the toolkit enumeration E.
template <class E>
struct EnumArgument {
  jint value;
};
template <class E>
inline EnumArgument<E> as(jint value) {
  return {value};
}

// Inputs, plus the tagged arguments above; each holds its buffers until the
// object is destroyed.
class GraphInputs : public Inputs {
 public:
  explicit GraphInputs(JNIEnv* env) : Inputs(env), env(env), points(env) {}
  using Inputs::operator();

  const SbVec2f* operator()(VectorObjects<SbVec2f> a) { return vectors2.emplace_front(env, a.array).toNativeArray(); }
  const SbVec3f* operator()(VectorObjects<SbVec3f> a) { return vectors3.emplace_front(env, a.array).toNativeArray(); }
  const SbColor* operator()(VectorObjects<SbColor> a) { return colours.emplace_front(env, a.array).toNativeArray(); }
  const char** operator()(Utf8Strings a) { return strings.emplace_front(env, a.array).toUTFStringArray(); }
  const SbVec2f& operator()(Point2 a) {
    return *reinterpret_cast<const SbVec2f*>(points.toNativeArray(a.array, ArrayHelper::ReadWrite));
  }
  template <class E>
  E operator()(EnumArgument<E> a) {
    return toEnum<E>(a.value);
  }

 private:
  JNIEnv* env;
  ArrayHelper points;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbVec2f>> vectors2;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbVec3f>> vectors3;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbColor>> colours;
  std::forward_list<StringArrayHelper> strings;
};

// Constructor function body: a new T made from the converted arguments.
template <class T, class... Args>
inline jlong constructFromJava(JNIEnv* env, Args... args) {
  GraphInputs in(env);
  std::tuple<decltype(in(args))...> converted{in(args)...};
  return std::apply(New<T>(), converted);
}

}  // namespace tavrel
