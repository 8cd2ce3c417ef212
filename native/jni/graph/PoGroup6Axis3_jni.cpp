// com.kestrum.tavrel.graph.PoGroup6Axis3, constructor functions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGroup6Axis3.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGroup6Axis3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGroup6Axis3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup6Axis3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGroup6Axis3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup6Axis3_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGroup6Axis3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGroup6Axis3_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                              jfloatArray end, jint xType, jint yType,
                                                                              jint zType, jstring xTitle,
                                                                              jstring yTitle, jstring zTitle) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const SbVec3f& e = in.vec3(end);
    const char* x = in.text(xTitle);
    const char* y = in.text(yTitle);
    const char* z = in.text(zTitle);
    return new PoGroup6Axis3{s, e, toEnum<PoGroup6Axis3::AxisType>(xType), toEnum<PoGroup6Axis3::AxisType>(yType),
                             toEnum<PoGroup6Axis3::AxisType>(zType), x, y, z};
  });
}

// PoGroup6Axis3.AxisTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup6Axis3_00024AxisTypes_getLINEARNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup6Axis3::LINEAR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoGroup6Axis3_00024AxisTypes_getLOGARITHMICNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoGroup6Axis3::LOGARITHMIC);
}

}  // extern "C"
