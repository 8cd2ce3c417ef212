// com.kestrum.tavrel.graph.PoBiErrorPointField: error points from a count, SbVec2f points and four
// error lists; class-level getters and the variation types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoBiErrorPointField.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoBiErrorPointField>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoBiErrorPointField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoBiErrorPointField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_ctorImpl1(
    JNIEnv* env, jclass, jint num, jobjectArray points, jfloatArray xLow, jfloatArray xHigh, jfloatArray yLow,
    jfloatArray yHigh, jint variationType, jint flag1, jint flag2) {
  return tavrel::constructFromJava<PoBiErrorPointField>(
      env, num, tavrel::points2(points), xLow, xHigh, yLow, yHigh,
      tavrel::as<PoBiErrorPointField::VariationType>(variationType), flag1, flag2);
}

// PoBiErrorPointField.VariationTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_00024VariationTypes_getFIXEDVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBiErrorPointField::FIXEDVARIATION);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBiErrorPointField_00024VariationTypes_getRELVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBiErrorPointField::RELVARIATION);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBiErrorPointField_00024VariationTypes_getPERCENTFIXEDVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBiErrorPointField::PERCENTFIXEDVARIATION);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBiErrorPointField_00024VariationTypes_getPERCENTRELVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBiErrorPointField::PERCENTRELVARIATION);
}

}  // extern "C"
