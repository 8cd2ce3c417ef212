// Contour lines of a 2D mesh: class-level methods, the annotation format and
// text attributes, and the annotation enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshContouring.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshContouring>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshContouring>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshContouring>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_setFormatImpl(JNIEnv*, jobject, jlong handle,
                                                                                 jlong format) {
  tavrel::setLink(handle, &PoMeshContouring::setFormat, format);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMeshContouring::getFormat);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_setMiscTextAttrImpl(JNIEnv*, jobject,
                                                                                       jlong handle,
                                                                                       jlong textAttr) {
  tavrel::setLink(handle, &PoMeshContouring::setMiscTextAttr, textAttr);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_getMiscTextAttrImpl(JNIEnv*, jobject,
                                                                                        jlong handle) {
  return tavrel::getLink(handle, &PoMeshContouring::getMiscTextAttr);
}

// PoMeshContouring.AnnotPaths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotPaths_getTANGENTIALPATHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::TANGENTIALPATH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotPaths_getHORIZONTALPATHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::HORIZONTALPATH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotPaths_getVERTICALPATHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::VERTICALPATH);
}

// PoMeshContouring.AnnotCrossStatusType

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotCrossStatusType_getCROSSCONTOURNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::CROSSCONTOUR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotCrossStatusType_getCROSSMINORCONTOURNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::CROSSMINORCONTOUR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_data_PoMeshContouring_00024AnnotCrossStatusType_getDONTCROSSCONTOURNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMeshContouring::DONTCROSSCONTOUR);
}

}  // extern "C"
