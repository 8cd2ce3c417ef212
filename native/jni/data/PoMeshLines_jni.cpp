// Cell edges of a 2D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshLines.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLines_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshLines>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshLines_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshLines>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshLines_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshLines>();
}

}  // extern "C"
