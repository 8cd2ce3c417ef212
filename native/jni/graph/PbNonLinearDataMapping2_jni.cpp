// com.kestrum.tavrel.graph.PbNonLinearDataMapping2: constructor functions,
// its type, its lists set from Java (colours as SbColor objects) and read
// back as copies, as direct buffers over the mapping's own lists (null when
// there is no list), or as the raw address of the colour list.

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbNonLinearDataMapping2.h>

#include "common/ClassFamilies.h"
#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/Results.h"

using tavrel::fromHandle;

namespace {
PbNonLinearDataMapping2* mapping(jlong handle) { return fromHandle<PbNonLinearDataMapping2>(handle); }

PbNonLinearDataMapping2::Type typeOf(jint type) { return tavrel::toEnum<PbNonLinearDataMapping2::Type>(type); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbNonLinearDataMapping2>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_ctorImpl1(JNIEnv*, jclass,
                                                                                      jlong other) {
  return tavrel::constructCopy<PbNonLinearDataMapping2>(other);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getTypeImpl(JNIEnv*, jobject,
                                                                                       jlong handle) {
  return mapping(handle)->getType();
}

// The count passed is num, not an array length.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_setValuesImpl(
    JNIEnv* env, jobject, jlong handle, jint type, jint num, jfloatArray values, jobjectArray colors) {
  FloatLayoutedArrayTypeArrayHelper<SbColor> colours(env, colors);
  const SbColor* nativeColours = colours.toNativeArray();
  ArrayHelper helper(env);
  mapping(handle)->setValues(typeOf(type), num, helper.toNativeArray(values, ArrayHelper::ReadOnly), nativeColours);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_setValuesImpl1(
    JNIEnv* env, jobject, jlong handle, jint type, jint num, jfloatArray values, jobjectArray colors,
    jfloatArray transparency) {
  FloatLayoutedArrayTypeArrayHelper<SbColor> colours(env, colors);
  const SbColor* nativeColours = colours.toNativeArray();
  ArrayHelper helper(env);
  const float* nativeValues = helper.toNativeArray(values, ArrayHelper::ReadOnly);
  mapping(handle)->setValues(typeOf(type), num, nativeValues, nativeColours,
                             helper.toNativeArray(transparency, ArrayHelper::ReadOnly));
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getValuesListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  return tavrel::countedList(env, num, m->getValuesList(), m->getNumValues());
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getTransparencyListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  return tavrel::countedList(env, num, m->getTransparencyList(), m->getNumColors());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getRGBColorsListImpl(JNIEnv* env,
                                                                                                 jobject,
                                                                                                 jlong handle,
                                                                                                 jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  tavrel::writeOutput(env, num, m->getNumColors());
  return tavrel::toHandle(m->getColorsList());
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getDirectValuesListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  return tavrel::countedBuffer(env, num, m->getValuesList(), m->getNumValues(), sizeof(float));
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getDirectRGBColorsListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  return tavrel::countedBuffer(env, num, m->getColorsList(), m->getNumColors(), sizeof(SbColor));
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_getDirectTransparencyListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num) {
  const PbNonLinearDataMapping2* m = mapping(handle);
  return tavrel::countedBuffer(env, num, m->getTransparencyList(), m->getNumColors(), sizeof(float));
}

// PbNonLinearDataMapping2.Types

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_00024Types_getNONLINEARPERLEVELNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbNonLinearDataMapping2::NONLINEARPERLEVEL);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping2_00024Types_getLINEARPERLEVELNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbNonLinearDataMapping2::LINEARPERLEVEL);
}

}  // extern "C"
