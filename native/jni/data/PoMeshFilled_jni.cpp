// Filled cells of a 2D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshFilled.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshFilled_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshFilled>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshFilled_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshFilled>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshFilled_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshFilled>();
}

}  // extern "C"
