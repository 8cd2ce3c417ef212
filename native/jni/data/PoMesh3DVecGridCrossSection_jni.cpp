// Vectors on a grid over a cross section of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh3DVecGridCrossSection.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecGridCrossSection_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMesh3DVecGridCrossSection>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecGridCrossSection_getClassTypeId(
    JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh3DVecGridCrossSection>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecGridCrossSection_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh3DVecGridCrossSection>();
}

}  // extern "C"
