// Outer faces of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshSkin.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSkin_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshSkin>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshSkin_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshSkin>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshSkin_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshSkin>();
}

}  // extern "C"
