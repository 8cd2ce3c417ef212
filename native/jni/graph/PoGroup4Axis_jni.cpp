// com.kestrum.tavrel.graph.PoGroup4Axis, constructor functions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGroup4Axis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGroup4Axis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGroup4Axis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup4Axis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGroup4Axis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup4Axis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGroup4Axis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup4Axis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                             jfloatArray end, jint xType, jint yType,
                                                                             jstring xTitle, jstring yTitle) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec2f& s = in.vec2(start);
    const SbVec2f& e = in.vec2(end);
    const char* x = in.text(xTitle);
    const char* y = in.text(yTitle);
    return new PoGroup4Axis{s, e, toEnum<PoGroup4Axis::AxisType>(xType), toEnum<PoGroup4Axis::AxisType>(yType), x, y};
  });
}

// PoGroup4Axis.AxisTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup4Axis_00024AxisTypes_getLINEARNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup4Axis::LINEAR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup4Axis_00024AxisTypes_getLOGARITHMICNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup4Axis::LOGARITHMIC);
}

}  // extern "C"
