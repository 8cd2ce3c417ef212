// Base of the representations of 3D meshes: class-level getters and the 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3D_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh3D>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh3D_setMeshImpl(JNIEnv*, jobject, jlong handle, jlong mesh) {
  tavrel::setLink(handle, &PoMesh3D::setMesh, mesh);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3D_getMeshImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh3D::getMesh);
}

}  // extern "C"
