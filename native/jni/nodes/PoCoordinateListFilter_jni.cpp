// com.kestrum.tavrel.nodes.PoCoordinateListFilter: a 1D-mesh filter keeping the points at listed
// coordinates, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCoordinateListFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoCoordinateListFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCoordinateListFilter>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoCoordinateListFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCoordinateListFilter>(env);
}

// PoCoordinateListFilter.AxisType

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoCoordinateListFilter_00024AxisType_getXNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoCoordinateListFilter::X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoCoordinateListFilter_00024AxisType_getYNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoCoordinateListFilter::Y);
}

}  // extern "C"
