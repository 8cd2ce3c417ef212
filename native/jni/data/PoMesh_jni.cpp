// Base of the mesh representations: class-level getters, the objects a
// representation keeps by address, and the colouring types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh_setMeshImpl(JNIEnv*, jobject, jlong handle, jlong mesh) {
  tavrel::setLink(handle, &PoMesh::setMesh, mesh);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh_getMeshImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh::getMesh);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh_setDataMappingImpl(JNIEnv*, jobject, jlong handle,
                                                                            jlong mapping) {
  tavrel::setLink(handle, &PoMesh::setDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh_getDataMappingImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh::getDataMapping);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh_setModuleDataMappingImpl(JNIEnv*, jobject, jlong handle,
                                                                                  jlong mapping) {
  tavrel::setLink(handle, &PoMesh::setModuleDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh_getModuleDataMappingImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh::getModuleDataMapping);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMesh_setIsovaluesListImpl(JNIEnv*, jobject, jlong handle,
                                                                              jlong isovalues) {
  tavrel::setLink(handle, &PoMesh::setIsovaluesList, isovalues);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh_getIsovaluesListImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMesh::getIsovaluesList);
}

// PoMesh.ColoringTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh_00024ColoringTypes_getCOLORINHERITEDNative(JNIEnv*,
                                                                                                    jclass) {
  return tavrel::enumValue(PoMesh::COLORINHERITED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh_00024ColoringTypes_getCOLORAVERAGENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh::COLORAVERAGE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh_00024ColoringTypes_getCOLORMAPPINGNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh::COLORMAPPING);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh_00024ColoringTypes_getCOLORCONTOURINGNative(JNIEnv*,
                                                                                                     jclass) {
  return tavrel::enumValue(PoMesh::COLORCONTOURING);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh_00024ColoringTypes_getCOLORTEXTURECONTOURINGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh::COLORTEXTURECONTOURING);
}

}  // extern "C"
