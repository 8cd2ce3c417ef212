// Outline of a 2D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshLimit.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLimit_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshLimit>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshLimit_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshLimit>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLimit_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshLimit>();
}

}  // extern "C"
