// Shapes shared by the native methods that pass arrays to the toolkit or take
// several results back: input conversion in argument order, constructor
// functions with array arguments, direct buffers into Object[] outputs,
// output arrays written from a toolkit call, and grid index conversions.
#pragma once

#include <jni.h>

#include <Corvel/SbBox.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>
#include <Corvel/SbString.h>

#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/Results.h"

namespace tavrel {

// A string argument that the toolkit takes as an SbString (wide-string path).
struct WideName {
  WideName(JNIEnv* env, jstring name) : helper(env, name), value(helper.toUnicodeString()) {}
  StringHelper helper;
  SbString value;
};

// A string argument that the toolkit takes as char const* (UTF-8 path).
struct Utf8Text {
  Utf8Text(JNIEnv* env, jstring text) : helper(env, text), value(helper.toUTFString()) {}
  StringHelper helper;
  const char* value;
};

// Converts the arguments of one toolkit call: arrays ReadOnly (released when
// the Inputs object is destroyed), a jboolean as the toolkit's int flag, other
// scalars unchanged.
class Inputs {
 public:
  explicit Inputs(JNIEnv* env) : helper(env) {}
  const float* operator()(jfloatArray a) { return helper.toNativeArray(a, ArrayHelper::ReadOnly); }
  const int* operator()(jintArray a) { return helper.toNativeArray(a, ArrayHelper::ReadOnly); }
  int operator()(jboolean flag) { return toFlag(flag); }
  int operator()(jint v) { return v; }
  float operator()(jfloat v) { return v; }

 private:
  ArrayHelper helper;
};

// Calls f with the converted arguments. The conversions run left to right (a
// braced list fixes the order); the arrays are released after f returns or
// throws.
template <class F, class... Args>
inline decltype(auto) withInputs(JNIEnv* env, F&& f, Args... args) {
  Inputs in(env);
  std::tuple<decltype(in(args))...> converted{in(args)...};
  return std::apply(std::forward<F>(f), converted);
}

namespace detail {
// Converts args[N-1] first and args[0] last with in, then calls f with the
// results in the arguments' order.
template <class Convert, class F, class Tuple, std::size_t... K>
inline decltype(auto) callConvertedFromLast(Convert& in, F&& f, const Tuple& args, std::index_sequence<K...>) {
  constexpr std::size_t N = sizeof...(K);
  std::tuple<decltype(in(std::get<N - 1 - K>(args)))...> reversed{in(std::get<N - 1 - K>(args))...};
  return std::forward<F>(f)(std::get<N - 1 - K>(reversed)...);
}
}  // namespace detail

// As Inputs, with an ArrayHelper of its own for each of the N arrays, all
// made first; each conversion takes the next helper.
template <std::size_t N>
class InputsEach {
 public:
  explicit InputsEach(JNIEnv* env) {
    for (auto& h : helpers) h.emplace(env);
  }
  const float* operator()(jfloatArray a) { return next().toNativeArray(a, ArrayHelper::ReadOnly); }
  const int* operator()(jintArray a) { return next().toNativeArray(a, ArrayHelper::ReadOnly); }
  int operator()(jint v) { return v; }
  float operator()(jfloat v) { return v; }

 private:
  ArrayHelper& next() { return *helpers[used++]; }
  std::optional<ArrayHelper> helpers[N + 1];
  std::size_t used = 0;
};

// receiver->setGeometry(...) with the converted arguments: one ArrayHelper per
// array argument, made first; the arrays converted ReadOnly from the last
// array to the first and released after the call; scalars pass unchanged.
template <class Receiver, class... Args>
inline void setGeometryOf(JNIEnv* env, Receiver* receiver, Args... args) {
  constexpr std::size_t arrays =
      (std::size_t{0} + ... + (std::is_same_v<Args, jfloatArray> || std::is_same_v<Args, jintArray> ? 1 : 0));
  InputsEach<arrays> in(env);
  detail::callConvertedFromLast(in, [receiver](auto... a) { receiver->setGeometry(a...); }, std::make_tuple(args...),
                                std::index_sequence_for<Args...>());
}

// Constructor function body: a new T from the converted arguments.
template <class T>
struct New {
  template <class... A>
  jlong operator()(A... a) const {
    return construct<T>(a...);
  }
};

template <class T, class... Args>
inline jlong constructWith(JNIEnv* env, Args... args) {
  return withInputs(env, New<T>(), args...);
}

// Stores a direct buffer of 4 x count bytes over each float array (null for a
// null pointer) into element 0 of the matching Object[] output, in order.
template <std::size_t N>
inline void storeFloatBuffers(JNIEnv* env, const jobjectArray (&outs)[N], const float* const (&arrays)[N],
                              const int (&counts)[N]) {
  for (std::size_t i = 0; i < N; ++i)
    storeDirectBuffer(env, outs[i], arrays[i], arrays[i] == nullptr ? 0 : 4 * static_cast<std::size_t>(counts[i]));
}

// A toolkit flag with its value through an output array: the local starts at
// 0 and is written into out[0] whatever the flag says.
template <class Receiver>
inline jboolean flagAndValue(JNIEnv* env, const Receiver* receiver, SbBool (Receiver::*get)(int, float&) const,
                             jint set, jfloatArray out) {
  float value = 0.0f;
  SbBool flag = (receiver->*get)(set, value);
  writeOutput(env, out, value);
  return toJBoolean(flag);
}

// A box with the index of its cell: boxOut is converted, the toolkit called,
// the box written, then cellOut converted and written; boxOut's helper goes
// first, then cellOut's.
template <class Receiver>
inline void cellBox(JNIEnv* env, const Receiver* receiver, SbBox3f (Receiver::*get)(int&) const, jintArray cellOut,
                    jfloatArray boxOut) {
  int cell = 0;
  ArrayHelper cellHelper(env);
  ArrayHelper boxHelper(env);
  float* box = boxHelper.toNativeArray(boxOut, ArrayHelper::ReadWrite);
  SbBox3f result = (receiver->*get)(cell);
  const float* floats = reinterpret_cast<const float*>(&result);
  for (int i = 0; i < 6; ++i) box[i] = floats[i];
  int* index = cellHelper.toNativeArray(cellOut, ArrayHelper::ReadWrite);
  index[0] = cell;
}

// A point and a parametric-coordinate output, both converted ReadWrite, for a
// toolkit call locate(point, pcoord); the coordinates reach Java when the
// helper is destroyed, after the call, whatever it returned.
template <class Locate>
inline auto locateWith(JNIEnv* env, jfloatArray point, jfloatArray pcoordOut, Locate locate) {
  ArrayHelper helper(env);
  const SbVec3f& p = *reinterpret_cast<const SbVec3f*>(helper.toNativeArray(point, ArrayHelper::ReadWrite));
  SbVec3f& pcoord = *reinterpret_cast<SbVec3f*>(helper.toNativeArray(pcoordOut, ArrayHelper::ReadWrite));
  return locate(p, pcoord);
}

// An SbVec3f result of a toolkit call call(pcoord, vectors) into out[0..2]:
// pcoord (in the given mode) and out are converted, then the vectors; after
// the call out's helper goes first (the result reaches Java), then the vector
// array, then pcoord's helper.
template <class Call>
inline void vectorResult(JNIEnv* env, jfloatArray pcoord, ArrayHelper::AccessMode pcoordMode, jobjectArray vectors,
                         jfloatArray out, Call call) {
  ArrayHelper pcoordHelper(env);
  FloatLayoutedArrayTypeArrayHelper<SbVec3f> natives(env, vectors);
  ArrayHelper outHelper(env);
  const float* p = pcoordHelper.toNativeArray(pcoord, pcoordMode);
  float* target = outHelper.toNativeArray(out, ArrayHelper::ReadWrite);
  SbVec3f result = call(p, natives.toNativeArray());
  for (int i = 0; i < 3; ++i) target[i] = result[i];
}

// Linear index to grid indices with truncating division: the last count
// varies fastest. A divisor below 1 (a degenerate grid) writes -1 everywhere.
template <std::size_t N>
inline void gridIndices(JNIEnv* env, jint n, const int (&divisors)[N], const jintArray (&outs)[N + 1]) {
  int indices[N + 1];
  bool degenerate = false;
  for (int d : divisors) degenerate = degenerate || d < 1;
  if (degenerate) {
    for (int& i : indices) i = -1;
  } else {
    int rest = n;
    for (std::size_t k = N; k > 0; --k) {
      const int d = divisors[k - 1];
      indices[k] = rest % d;
      rest = (rest - indices[k]) / d;
    }
    indices[0] = rest;
  }
  for (std::size_t k = 0; k <= N; ++k) writeOutput(env, outs[k], indices[k]);
}

}  // namespace tavrel

namespace tavrel {

// getDerivs(pcoord, derivs) of a cell class: both arrays ReadWrite, the
// derivatives reach Java when the helper is destroyed.
template <class Cell>
inline void derivatives(JNIEnv* env, jlong handle, jfloatArray pcoord, jfloatArray derivs) {
  ArrayHelper helper(env);
  const SbVec3f& p = *reinterpret_cast<const SbVec3f*>(helper.toNativeArray(pcoord, ArrayHelper::ReadWrite));
  float* out = helper.toNativeArray(derivs, ArrayHelper::ReadWrite);
  fromHandle<const Cell>(handle)->getDerivs(p, out);
}

}  // namespace tavrel
