// com.kestrum.tavrel.graph.PoErrorPointField: error points from a count, SbVec2f points and two
// error lists; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoErrorPointField.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoErrorPointField>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoErrorPointField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoErrorPointField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_ctorImpl1(
    JNIEnv* env, jclass, jint num, jobjectArray points, jfloatArray xErrors, jfloatArray yErrors, jint shape,
    jint skeleton) {
  return tavrel::constructFromJava<PoErrorPointField>(
      env, num, tavrel::points2(points), xErrors, yErrors, tavrel::as<PoErrorPointField::ShapeType>(shape),
      tavrel::as<PoErrorPointField::SkeletonType>(skeleton));
}

// PoErrorPointField.ShapeTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024ShapeTypes_getNOSHAPENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::NOSHAPE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024ShapeTypes_getRECTANGLESHAPENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::RECTANGLESHAPE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024ShapeTypes_getQUADRANGLESHAPENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::QUADRANGLESHAPE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024ShapeTypes_getELLIPSESHAPENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::ELLIPSESHAPE);
}

// PoErrorPointField.SkeletonTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024SkeletonTypes_getNOSKELETONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::NOSKELETON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024SkeletonTypes_getCROSS1SKELETONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::CROSS1SKELETON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024SkeletonTypes_getCROSS2SKELETONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::CROSS2SKELETON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024SkeletonTypes_getCROSS3SKELETONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::CROSS3SKELETON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorPointField_00024SkeletonTypes_getBARSKELETONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorPointField::BARSKELETON);
}

}  // extern "C"
