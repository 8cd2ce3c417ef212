// com.kestrum.tavrel.graph.PbLinearDataMapping: constructor functions, and
// the two ends of the mapping set and read in RGB (colours as SbColor,
// ReadWrite) or HLS (3 floats; ReadOnly when set), with or without their
// transparencies. The getters write the colours straight into the colour
// arrays and the values and transparencies into element 0 of their outputs.

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbLinearDataMapping.h>

#include "common/Handles.h"
#include "common/ValueArrays.h"

using tavrel::fromHandle;
using tavrel::valueIn;

namespace {
PbLinearDataMapping* mapping(jlong handle) { return fromHandle<PbLinearDataMapping>(handle); }

constexpr ArrayHelper::AccessMode kReadWrite = ArrayHelper::ReadWrite;
constexpr ArrayHelper::AccessMode kReadOnly = ArrayHelper::ReadOnly;
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbLinearDataMapping>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbLinearDataMapping>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_setValuesImpl(JNIEnv* env, jobject,
                                                                                     jlong handle, jfloat value1,
                                                                                     jfloatArray color1,
                                                                                     jfloat value2,
                                                                                     jfloatArray color2) {
  ArrayHelper helper(env);
  mapping(handle)->setValues(value1, valueIn<SbColor>(helper, color1, kReadWrite), value2,
                             valueIn<SbColor>(helper, color2, kReadWrite));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_setValuesImpl1(
    JNIEnv* env, jobject, jlong handle, jfloat value1, jfloatArray color1, jfloat transparency1, jfloat value2,
    jfloatArray color2, jfloat transparency2) {
  ArrayHelper helper(env);
  mapping(handle)->setValues(value1, valueIn<SbColor>(helper, color1, kReadWrite), transparency1, value2,
                             valueIn<SbColor>(helper, color2, kReadWrite), transparency2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_setValuesImpl2(JNIEnv* env, jobject,
                                                                                      jlong handle, jfloat value1,
                                                                                      jfloatArray hls1,
                                                                                      jfloat value2,
                                                                                      jfloatArray hls2) {
  ArrayHelper helper(env);
  const float* first = helper.toNativeArray(hls1, kReadOnly);
  mapping(handle)->setValues(value1, first, value2, static_cast<const float*>(helper.toNativeArray(hls2, kReadOnly)));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_setValuesImpl3(
    JNIEnv* env, jobject, jlong handle, jfloat value1, jfloatArray hls1, jfloat transparency1, jfloat value2,
    jfloatArray hls2, jfloat transparency2) {
  ArrayHelper helper(env);
  const float* first = helper.toNativeArray(hls1, kReadOnly);
  mapping(handle)->setValues(value1, first, transparency1, value2,
                             static_cast<const float*>(helper.toNativeArray(hls2, kReadOnly)), transparency2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_getRGBValuesImpl(
    JNIEnv* env, jobject, jlong handle, jfloatArray value1, jfloatArray color1, jfloatArray value2,
    jfloatArray color2) {
  const PbLinearDataMapping* m = mapping(handle);
  tavrel::twoColorsAndScalars<SbColor>(env, color1, color2, {value1, value2},
                                       [m](SbColor* c1, SbColor* c2, float* v) { m->getValues(v[0], *c1, v[1], *c2); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_getRGBAValuesImpl(
    JNIEnv* env, jobject, jlong handle, jfloatArray value1, jfloatArray color1, jfloatArray transparency1,
    jfloatArray value2, jfloatArray color2, jfloatArray transparency2) {
  const PbLinearDataMapping* m = mapping(handle);
  tavrel::twoColorsAndScalars<SbColor>(
      env, color1, color2, {value1, transparency1, value2, transparency2},
      [m](SbColor* c1, SbColor* c2, float* v) { m->getValues(v[0], *c1, v[1], v[2], *c2, v[3]); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_getHLSValuesImpl(
    JNIEnv* env, jobject, jlong handle, jfloatArray value1, jfloatArray color1, jfloatArray value2,
    jfloatArray color2) {
  const PbLinearDataMapping* m = mapping(handle);
  tavrel::twoColorsAndScalars<float>(env, color1, color2, {value1, value2},
                                     [m](float* c1, float* c2, float* v) { m->getValues(v[0], c1, v[1], c2); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbLinearDataMapping_getHLSAValuesImpl(
    JNIEnv* env, jobject, jlong handle, jfloatArray value1, jfloatArray color1, jfloatArray transparency1,
    jfloatArray value2, jfloatArray color2, jfloatArray transparency2) {
  const PbLinearDataMapping* m = mapping(handle);
  tavrel::twoColorsAndScalars<float>(
      env, color1, color2, {value1, transparency1, value2, transparency2},
      [m](float* c1, float* c2, float* v) { m->getValues(v[0], c1, v[1], v[2], c2, v[3]); });
}

}  // extern "C"
