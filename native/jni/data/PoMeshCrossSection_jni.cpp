// Cross section of a 3D mesh: class-level methods and the cross-section
// method, which is a plain member of the node (set inline, nothing notified).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshCrossSection.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshCrossSection>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshCrossSection>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshCrossSection>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_setCrossSectionMethodImpl(JNIEnv*, jobject,
                                                                                               jlong handle,
                                                                                               jint method) {
  tavrel::fromHandle<PoMeshCrossSection>(handle)->setCrossSectionMethod(
      tavrel::toEnum<PoMeshCrossSection::CrossSectionMethods>(method));
}

// PoMeshCrossSection.CrossSectionMethods

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_00024CrossSectionMethods_getDEFAULTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshCrossSection::DEFAULT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshCrossSection_00024CrossSectionMethods_getISOSURFACENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshCrossSection::ISOSURFACE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMeshCrossSection_00024CrossSectionMethods_getINTERSECTIONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshCrossSection::INTERSECTION);
}

}  // extern "C"
