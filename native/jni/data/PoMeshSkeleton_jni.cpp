// Skeleton lines of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshSkeleton.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSkeleton_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshSkeleton>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshSkeleton_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshSkeleton>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSkeleton_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshSkeleton>();
}

}  // extern "C"
