// Base of the representations of 2D meshes: class-level getters and the 2D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh2D_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh2D>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh2D_setMeshImpl(JNIEnv*, jobject, jlong handle, jlong mesh) {
  tavrel::setLink(handle, &PoMesh2D::setMesh, mesh);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh2D_getMeshImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh2D::getMesh);
}

}  // extern "C"
