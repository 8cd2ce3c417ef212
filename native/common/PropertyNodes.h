// Shapes of the attribute property nodes' methods with arguments: two
// vectors and a bounding-box type, the isovalue list with its five outputs
// (as a new Java array or a direct buffer), and a date's coordinate.
#pragma once

#include <jni.h>

#include <Corvel/SbBase.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <cstddef>

#include "common/Handles.h"
#include "common/Results.h"

namespace tavrel {

// receiver->setValues(min, max, type) with each float array converted
// ReadWrite (min first) and its first elements read as the vector V (SbVec2f
// or SbVec3f); the unchanged copies go back to Java when the call returns.
template <class V, class Receiver>
inline void setVectorValues(JNIEnv* env, Receiver* receiver, jfloatArray min, jfloatArray max, jint type) {
  using BoxType = typename Receiver::BoundingBoxType;
  ArrayHelper helper(env);
  const V& lo = *reinterpret_cast<const V*>(helper.toNativeArray(min, ArrayHelper::ReadWrite));
  const V& hi = *reinterpret_cast<const V*>(helper.toNativeArray(max, ArrayHelper::ReadWrite));
  receiver->setValues(lo, hi, toEnum<BoxType>(type));
}

// The five outputs of getIsoList (an int[], three float[] and a boolean[],
// each of at least one element) and the list the call returned. The helpers
// are made first; after the call, each output is converted ReadWrite and gets
// its result in element 0 (the flag through storeFlag); the helpers copy back
// to Java when this object is destroyed, the last output first.
class IsoListOutputs {
 public:
  IsoListOutputs(JNIEnv* env, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step,
                 jbooleanArray regular)
      : numHelper(env), minHelper(env), maxHelper(env), stepHelper(env), regularHelper(env),
        numOut(num), minOut(min), maxOut(max), stepOut(step), regularOut(regular) {}

  // Calls receiver->getIsoList with results that start at 0; returns the list.
  template <class Receiver>
  const float* get(const Receiver* receiver) {
    list = receiver->getIsoList(count, lo, hi, delta, flag);
    return list;
  }

  // Stores the five results into the outputs.
  void store() {
    numHelper.toNativeArray(numOut, ArrayHelper::ReadWrite)[0] = count;
    minHelper.toNativeArray(minOut, ArrayHelper::ReadWrite)[0] = lo;
    maxHelper.toNativeArray(maxOut, ArrayHelper::ReadWrite)[0] = hi;
    stepHelper.toNativeArray(stepOut, ArrayHelper::ReadWrite)[0] = delta;
    storeFlag(regularHelper.toNativeArray(regularOut, ArrayHelper::ReadWrite), flag);
  }

  int count = 0;
  const float* list = nullptr;

 private:
  ArrayHelper numHelper, minHelper, maxHelper, stepHelper, regularHelper;
  jintArray numOut;
  jfloatArray minOut, maxOut, stepOut;
  jbooleanArray regularOut;
  float lo = 0.0f;
  float hi = 0.0f;
  float delta = 0.0f;
  SbBool flag = 0;
};

// The isovalues as a new Java float[] of count elements (null for a null
// list), the five outputs written as IsoListOutputs says.
template <class Receiver>
inline jfloatArray isoListCopy(JNIEnv* env, const Receiver* receiver, jintArray num, jfloatArray min,
                               jfloatArray max, jfloatArray step, jbooleanArray regular) {
  IsoListOutputs outputs(env, num, min, max, step, regular);
  const float* values = outputs.get(receiver);
  outputs.store();
  return ArrayHelper::fromNativeArray(env, values, static_cast<unsigned long>(outputs.count));
}

// The isovalues as a direct buffer of 4 x count bytes over the toolkit's
// memory (null for a null list), made before the outputs are written.
template <class Receiver>
inline jobject isoListBuffer(JNIEnv* env, const Receiver* receiver, jintArray num, jfloatArray min, jfloatArray max,
                             jfloatArray step, jbooleanArray regular) {
  IsoListOutputs outputs(env, num, min, max, step, regular);
  const float* values = outputs.get(receiver);
  jobject buffer = directBuffer(env, values, sizeof(float) * static_cast<std::size_t>(outputs.count));
  outputs.store();
  return buffer;
}

// receiver->getCoordinate(date, coord) with the date as UTF-8: the coordinate
// starts at 0.0 and goes into out[0] whatever the call returns; the call's
// int flag is returned.
template <class Receiver>
inline jboolean coordinateOfDate(JNIEnv* env, const Receiver* receiver, jstring date, jfloatArray out) {
  StringHelper text(env, date);
  const char* utf8 = text.toUTFString();
  float coord = 0.0f;
  const int result = receiver->getCoordinate(utf8, coord);
  writeOutput(env, out, coord);
  return toJBoolean(result);
}

}  // namespace tavrel
