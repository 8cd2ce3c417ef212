// Level surface of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshLevelSurf.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLevelSurf_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshLevelSurf>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshLevelSurf_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshLevelSurf>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLevelSurf_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshLevelSurf>();
}

// PoMeshLevelSurf.SurfOrientations

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshLevelSurf_00024SurfOrientations_getORIENTEDTOMINNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshLevelSurf::ORIENTEDTOMIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshLevelSurf_00024SurfOrientations_getORIENTEDTOMAXNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshLevelSurf::ORIENTEDTOMAX);
}

}  // extern "C"
