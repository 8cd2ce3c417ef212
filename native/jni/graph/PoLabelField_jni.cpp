// com.kestrum.tavrel.graph.PoLabelField: labels from a count, SbVec2f points, UTF-8 strings and
// values; its format by address; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoLabelField.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLabelField>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLabelField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLabelField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_ctorImpl1(
    JNIEnv* env, jclass, jint num, jobjectArray points, jobjectArray strings, jfloatArray values, jfloat offset,
    jint concatType, jint justification, jint verticalJustification) {
  return tavrel::constructFromJava<PoLabelField>(
      env, num, tavrel::points2(points), tavrel::utf8(strings), values, offset,
      tavrel::as<PoLabelField::ConcatType>(concatType), tavrel::as<PoLabelField::Justification>(justification),
      tavrel::as<PoLabelField::VerticalJustification>(verticalJustification));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_setFormatImpl(
    JNIEnv*, jobject, jlong handle, jlong format) {
  tavrel::setLink(handle, &PoLabelField::setFormat, format);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoLabelField::getFormat);
}

// PoLabelField.Justifications

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024Justifications_getLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::LEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024Justifications_getRIGHTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::RIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024Justifications_getCENTERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::CENTER);
}

// PoLabelField.VerticalJustifications

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024VerticalJustifications_getTOPNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::TOP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024VerticalJustifications_getCAPNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::CAP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024VerticalJustifications_getHALFNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::HALF);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024VerticalJustifications_getBASENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::BASE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024VerticalJustifications_getBOTTOMNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::BOTTOM);
}

// PoLabelField.CoordinateTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024CoordinateTypes_getCOORDINATEINDOMAINNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::COORDINATEINDOMAIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024CoordinateTypes_getCOORDINATEINCURRENTUNITNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::COORDINATEINCURRENTUNIT);
}

// PoLabelField.ConcatTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024ConcatTypes_getSTRINGBEFOREVALUENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::STRINGBEFOREVALUE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024ConcatTypes_getVALUEBEFORESTRINGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::VALUEBEFORESTRING);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024ConcatTypes_getSTRINGABOVEVALUENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::STRINGABOVEVALUE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabelField_00024ConcatTypes_getVALUEABOVESTRINGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelField::VALUEABOVESTRING);
}

}  // extern "C"
