// Toolkit values of a fixed size (colours, HLS triples, boxes, matrices)
// taken straight from the buffer of a Java float array: the toolkit reads
// (or, for ReadWrite, writes) the array's native elements as the value, and
// the helper copies them back to Java when it is destroyed.
//
// The Java side makes sure the array is long enough: 3 floats for SbColor
// and an HLS triple, 4 for SbBox2f, 6 for SbBox3f, 16 for SbMatrix.
#pragma once

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>

#include <cstddef>

#include "common/Results.h"

namespace tavrel {

// The array's buffer as a T (SbColor, SbBox2f, SbBox3f, SbMatrix).
template <class T>
inline T& valueIn(ArrayHelper& helper, jfloatArray array, ArrayHelper::AccessMode mode) {
  return *reinterpret_cast<T*>(helper.toNativeArray(array, mode));
}

// A toolkit getter of two colours and N scalars: the colours (C is SbColor,
// or float for an HLS triple) go straight into the buffers of colour1 and
// colour2, converted ReadWrite before the call; the scalars, which the call
// writes into values[0..N-1], go into element 0 of their outputs after it.
// get(c1, c2, values) makes the toolkit call.
template <class C, std::size_t N, class Get>
inline void twoColorsAndScalars(JNIEnv* env, jfloatArray colour1, jfloatArray colour2,
                                const jfloatArray (&scalars)[N], Get get) {
  ArrayHelper colours(env);
  C* c1 = reinterpret_cast<C*>(colours.toNativeArray(colour1, ArrayHelper::ReadWrite));
  C* c2 = reinterpret_cast<C*>(colours.toNativeArray(colour2, ArrayHelper::ReadWrite));
  float values[N] = {};
  get(c1, c2, values);
  for (std::size_t i = 0; i < N; ++i) writeOutput(env, scalars[i], values[i]);
}

}  // namespace tavrel
