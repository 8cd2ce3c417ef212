// com.kestrum.tavrel.nodes.PoPeriodFilter: a 1D-mesh filter keeping one point per period of a
// coordinate, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPeriodFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPeriodFilter>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoPeriodFilter>(env);
}

// PoPeriodFilter.AxisType

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodFilter_00024AxisType_getXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPeriodFilter::X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodFilter_00024AxisType_getYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPeriodFilter::Y);
}

}  // extern "C"
