// Contour lines on a cross section of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshCrossContour.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossContour_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshCrossContour>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossContour_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshCrossContour>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossContour_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshCrossContour>();
}

}  // extern "C"
