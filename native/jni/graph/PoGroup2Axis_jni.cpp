// com.kestrum.tavrel.graph.PoGroup2Axis, constructor functions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGroup2Axis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGroup2Axis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGroup2Axis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup2Axis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGroup2Axis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup2Axis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGroup2Axis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup2Axis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                             jfloatArray end, jint xType, jint yType,
                                                                             jstring xTitle, jstring yTitle) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec2f& s = in.vec2(start);
    const SbVec2f& e = in.vec2(end);
    const char* x = in.text(xTitle);
    const char* y = in.text(yTitle);
    return new PoGroup2Axis{s, e, toEnum<PoGroup2Axis::AxisType>(xType), toEnum<PoGroup2Axis::AxisType>(yType), x, y};
  });
}

// PoGroup2Axis.AxisTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup2Axis_00024AxisTypes_getLINEARNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup2Axis::LINEAR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup2Axis_00024AxisTypes_getLOGARITHMICNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup2Axis::LOGARITHMIC);
}

}  // extern "C"
