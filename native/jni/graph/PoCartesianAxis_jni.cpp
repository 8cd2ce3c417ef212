// com.kestrum.tavrel.graph.PoCartesianAxis, base of the linear, logarithmic and generalised
// axes: class-level getters and the axis types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCartesianAxis.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCartesianAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCartesianAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCartesianAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCartesianAxis>();
}

// PoCartesianAxis.Types

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getXYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::XY);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getXZNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::XZ);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getYXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::YX);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getYZNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::YZ);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getZXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::ZX);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoCartesianAxis_00024Types_getZYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCartesianAxis::ZY);
}

}  // extern "C"
