// Shapes shared by the constructor functions of the graph shapes and pie
// charts (points given as Java float arrays, slices with names, values and
// colours) and by the pie charts' picking.
#pragma once

#include <jni.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Corvel/SoPath.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <tuple>

#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

namespace tavrel {

// Converts the arguments of a shape's constructor: a float[] becomes the
// toolkit vector V (SbVec2f or SbVec3f) read from the array's buffer,
// converted ReadWrite and released when this object is destroyed; scalars
// pass unchanged.
template <class V>
class PointInputs {
 public:
  explicit PointInputs(JNIEnv* env) : helper(env) {}
  const V& operator()(jfloatArray a) {
    return *reinterpret_cast<const V*>(helper.toNativeArray(a, ArrayHelper::ReadWrite));
  }
  int operator()(jint v) { return v; }
  float operator()(jfloat v) { return v; }

 private:
  ArrayHelper helper;
};

// Constructor function of a shape: a new T(args...) with the float arrays
// taken as V, converted left to right and released after construction.
template <class T, class V, class... Args>
inline jlong constructFromPoints(JNIEnv* env, Args... args) {
  PointInputs<V> in(env);
  std::tuple<decltype(in(args))...> converted{in(args)...};
  return std::apply(New<T>(), converted);
}

// Constructor function of an arrow: a new T(count, points, start, end, a, b)
// with the points (vector objects) as a native V array, null for a null or
// empty array or one whose element 0 is null; the toolkit gets the count,
// not the array's length.
template <class T, class V>
inline jlong constructArrow(JNIEnv* env, jint count, jobjectArray points, jint startPattern, jint endPattern,
                            jfloat a, jfloat b) {
  using Pattern = typename T::PatternType;
  FloatLayoutedArrayTypeArrayHelper<V> natives(env, points);
  return construct<T>(static_cast<int>(count), natives.toNativeArray(), toEnum<Pattern>(startPattern),
                      toEnum<Pattern>(endPattern), static_cast<float>(a), static_cast<float>(b));
}

// Constructor function of a pie chart: a new T(centre, sizes..., count as a
// short (its low 16 bits), names, values, numColors, colours). The centre
// (V, ReadWrite), the names (UTF-8), the values (ReadOnly) and the colours
// (SbColor objects; null for a null or empty array or one whose element 0 is
// null) are converted in that order and released in reverse after
// construction.
template <class T, class V, class... Sizes>
inline jlong constructPieChart(JNIEnv* env, jfloatArray center, jint count, jobjectArray names, jfloatArray values,
                               jint numColors, jobjectArray colors, Sizes... sizes) {
  ArrayHelper centreHelper(env);
  const V& c = *reinterpret_cast<const V*>(centreHelper.toNativeArray(center, ArrayHelper::ReadWrite));
  StringArrayHelper nameHelper(env, names);
  const char** nativeNames = nameHelper.toUTFStringArray();
  ArrayHelper valueHelper(env);
  const float* nativeValues = valueHelper.toNativeArray(values, ArrayHelper::ReadOnly);
  FloatLayoutedArrayTypeArrayHelper<SbColor> colourHelper(env, colors);
  const SbColor* nativeColours = colourHelper.toNativeArray();
  return construct<T>(c, static_cast<float>(sizes)..., static_cast<short>(count), nativeNames, nativeValues,
                      static_cast<int>(numColors), nativeColours);
}

// getPickedSliceNumber(path, slice) of a chart: the int starts at 0 and goes
// into slice[0] whatever the toolkit returns; the toolkit's result is
// returned unchanged.
template <class Chart>
inline jint pickedSlice(JNIEnv* env, jlong handle, jlong path, jintArray slice) {
  int picked = 0;
  const int result = fromHandle<const Chart>(handle)->getPickedSliceNumber(fromHandle<const SoPath>(path), picked);
  writeOutput(env, slice, picked);
  return result;
}

}  // namespace tavrel
