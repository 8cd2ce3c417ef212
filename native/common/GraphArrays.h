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

#include <cstddef>
#include <forward_list>
#include <optional>
#include <tuple>
#include <type_traits>

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

// The conversions of one constructor function. The helpers are made first:
// a StringArrayHelper per string list (bound to its list, in argument order),
// then an ArrayHelper per value array; the arguments are then converted in
// the order they are asked for, each value array by its own helper, and
// everything is released, in reverse order of creation, when the object goes.
template <std::size_t StringLists, std::size_t ValueArrays>
class GraphInputs : public Inputs {
 public:
  template <class... Args>
  GraphInputs(JNIEnv* env, const Args&... args) : Inputs(env), env(env), points(env) {
    (bindStrings(args), ...);
    for (auto& h : values) h.emplace(env);
  }
  using Inputs::operator();

  const float* operator()(jfloatArray a) { return values[usedValues++]->toNativeArray(a, ArrayHelper::ReadOnly); }
  const SbVec2f* operator()(VectorObjects<SbVec2f> a) { return vectors2.emplace_front(env, a.array).toNativeArray(); }
  const SbVec3f* operator()(VectorObjects<SbVec3f> a) { return vectors3.emplace_front(env, a.array).toNativeArray(); }
  const SbColor* operator()(VectorObjects<SbColor> a) { return colours.emplace_front(env, a.array).toNativeArray(); }
  const char** operator()(Utf8Strings) { return strings[usedStrings++]->toUTFStringArray(); }
  const SbVec2f& operator()(Point2 a) {
    return *reinterpret_cast<const SbVec2f*>(points.toNativeArray(a.array, ArrayHelper::ReadWrite));
  }
  template <class E>
  E operator()(EnumArgument<E> a) {
    return toEnum<E>(a.value);
  }

 private:
  template <class A>
  void bindStrings(const A& a) {
    if constexpr (std::is_same_v<A, Utf8Strings>) strings[boundStrings++].emplace(env, a.array);
  }

  JNIEnv* env;
  std::optional<StringArrayHelper> strings[StringLists + 1];
  std::size_t boundStrings = 0;
  std::size_t usedStrings = 0;
  ArrayHelper points;
  std::optional<ArrayHelper> values[ValueArrays + 1];
  std::size_t usedValues = 0;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbVec2f>> vectors2;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbVec3f>> vectors3;
  std::forward_list<FloatLayoutedArrayTypeArrayHelper<SbColor>> colours;
};

// The helpers one constructor function needs for its arguments.
template <class... Args>
using GraphInputsFor = GraphInputs<(std::size_t{0} + ... + (std::is_same_v<Args, Utf8Strings> ? 1 : 0)),
                                   (std::size_t{0} + ... + (std::is_same_v<Args, jfloatArray> ? 1 : 0))>;

// Constructor function body: a new T made from the converted arguments,
// converted in argument order.
template <class T, class... Args>
inline jlong constructFromJava(JNIEnv* env, Args... args) {
  GraphInputsFor<Args...> in(env, args...);
  std::tuple<decltype(in(args))...> converted{in(args)...};
  return std::apply(New<T>(), converted);
}

// Constructor function body whose conversions run in an order of their own
// (a histogram: the origin, the name lists, then the values), the node made
// from the results in the toolkit's order: make receives the converted values in
// the order given here and returns the new node's handle.
template <class Make, class... Conversions>
inline jlong constructInOrder(JNIEnv* env, Make make, Conversions... conversions) {
  GraphInputsFor<Conversions...> in(env, conversions...);
  std::tuple<decltype(in(conversions))...> converted{in(conversions)...};
  return std::apply(make, converted);
}

}  // namespace tavrel
