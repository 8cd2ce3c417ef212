// com.kestrum.tavrel.graph.PbDataMapping: what every data mapping offers
// (colours of values, thresholds, transparency). Colours are taken straight
// from the buffers of 3-float arrays: RGB as SbColor (ReadWrite), HLS as
// float* (ReadOnly).

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbDataMapping.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ValueArrays.h"

using tavrel::fromHandle;
using tavrel::valueIn;

namespace {
PbDataMapping* mapping(jlong handle) { return fromHandle<PbDataMapping>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_getHLSColorImpl(JNIEnv* env, jobject,
                                                                                          jlong handle,
                                                                                          jfloat value) {
  return ArrayHelper::fromNativeArray(env, mapping(handle)->getHLSColor(value), 3);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMinThresholdImpl(JNIEnv*, jobject,
                                                                                     jlong handle,
                                                                                     jfloat threshold) {
  mapping(handle)->setMinThreshold(threshold);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMaxThresholdImpl(JNIEnv*, jobject,
                                                                                     jlong handle,
                                                                                     jfloat threshold) {
  mapping(handle)->setMaxThreshold(threshold);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMinThresholdImpl1(JNIEnv* env, jobject,
                                                                                      jlong handle, jfloat threshold,
                                                                                      jfloatArray color,
                                                                                      jfloat transparency) {
  ArrayHelper helper(env);
  mapping(handle)->setMinThreshold(threshold, valueIn<SbColor>(helper, color, ArrayHelper::ReadWrite), transparency);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMinThresholdImpl2(JNIEnv* env, jobject,
                                                                                      jlong handle, jfloat threshold,
                                                                                      jfloatArray hls,
                                                                                      jfloat transparency) {
  ArrayHelper helper(env);
  mapping(handle)->setMinThreshold(threshold, helper.toNativeArray(hls, ArrayHelper::ReadOnly), transparency);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMaxThresholdImpl1(JNIEnv* env, jobject,
                                                                                      jlong handle, jfloat threshold,
                                                                                      jfloatArray color,
                                                                                      jfloat transparency) {
  ArrayHelper helper(env);
  mapping(handle)->setMaxThreshold(threshold, valueIn<SbColor>(helper, color, ArrayHelper::ReadWrite), transparency);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setMaxThresholdImpl2(JNIEnv* env, jobject,
                                                                                      jlong handle, jfloat threshold,
                                                                                      jfloatArray hls,
                                                                                      jfloat transparency) {
  ArrayHelper helper(env);
  mapping(handle)->setMaxThreshold(threshold, helper.toNativeArray(hls, ArrayHelper::ReadOnly), transparency);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_enableThresholdsImpl(JNIEnv*, jobject,
                                                                                      jlong handle, jboolean min,
                                                                                      jboolean max) {
  mapping(handle)->enableThresholds(tavrel::toFlag(min), tavrel::toFlag(max));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_thresholdsEnabledImpl(JNIEnv* env, jobject,
                                                                                       jlong handle,
                                                                                       jbooleanArray min,
                                                                                       jbooleanArray max) {
  SbBool minFlag = 0;
  SbBool maxFlag = 0;
  mapping(handle)->thresholdsEnabled(minFlag, maxFlag);
  tavrel::writeOutput(env, min, minFlag);
  tavrel::writeOutput(env, max, maxFlag);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_enableTransparencyImpl(JNIEnv*, jobject,
                                                                                        jlong handle,
                                                                                        jboolean flag) {
  mapping(handle)->enableTransparency(tavrel::toFlag(flag));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_isTransparencyEnabledImpl(JNIEnv*, jobject,
                                                                                               jlong handle) {
  return tavrel::toJBoolean(mapping(handle)->isTransparencyEnabled());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_setTransparencyValueDeletedPartsImpl(
    JNIEnv*, jobject, jlong handle, jfloat value) {
  mapping(handle)->setTransparencyValueDeletedParts(value);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PbDataMapping_getTransparencyValueDeletedPartsImpl(
    JNIEnv*, jobject, jlong handle) {
  return mapping(handle)->getTransparencyValueDeletedParts();
}

}  // extern "C"
