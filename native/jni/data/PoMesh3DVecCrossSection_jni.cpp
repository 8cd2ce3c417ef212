// Vectors on a cross section of a 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh3DVecCrossSection.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMesh3DVecCrossSection>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh3DVecCrossSection>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh3DVecCrossSection>();
}

// PoMesh3DVecCrossSection.ProjectionTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_00024ProjectionTypes_getNOPROJECTIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVecCrossSection::NOPROJECTION);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_00024ProjectionTypes_getPROJECTIONONPLANENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVecCrossSection::PROJECTIONONPLANE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMesh3DVecCrossSection_00024ProjectionTypes_getPROJECTIONONNORMALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVecCrossSection::PROJECTIONONNORMAL);
}

}  // extern "C"
