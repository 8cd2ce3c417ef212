// Sides of a 2D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshSides.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshSides>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshSides>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshSides>();
}

// PoMeshSides.ThresholdTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_00024ThresholdTypes_getTHRESHOLDZMINNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshSides::THRESHOLDZMIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_00024ThresholdTypes_getTHRESHOLDZMAXNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshSides::THRESHOLDZMAX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshSides_00024ThresholdTypes_getTHRESHOLDVALUENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshSides::THRESHOLDVALUE);
}

}  // extern "C"
