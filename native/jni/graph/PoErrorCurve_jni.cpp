// com.kestrum.tavrel.graph.PoErrorCurve: a curve with error bars from a count, SbVec2f points
// and two variation lists; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoErrorCurve.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoErrorCurve>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoErrorCurve>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoErrorCurve>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_ctorImpl1(
    JNIEnv* env, jclass, jint numPoints, jobjectArray points, jfloatArray lowVariation, jfloatArray highVariation,
    jint variationType, jint errorCurveRep) {
  return tavrel::constructFromJava<PoErrorCurve>(env, numPoints, tavrel::points2(points), lowVariation,
                                                 highVariation,
                                                 tavrel::as<PoErrorCurve::VariationType>(variationType),
                                                 tavrel::as<PoErrorCurve::ErrorCurveRep>(errorCurveRep));
}

// PoErrorCurve.VariationTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024VariationTypes_getFIXEDVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::FIXEDVARIATION);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024VariationTypes_getRELVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::RELVARIATION);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024VariationTypes_getPERCENTFIXEDVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::PERCENTFIXEDVARIATION);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024VariationTypes_getPERCENTRELVARIATIONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::PERCENTRELVARIATION);
}

// PoErrorCurve.ErrorCurveReps

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024ErrorCurveReps_getHIGHLOWCLOSENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::HIGHLOWCLOSE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024ErrorCurveReps_getLINEBARNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::LINEBAR);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoErrorCurve_00024ErrorCurveReps_getFILLEDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoErrorCurve::FILLED);
}

}  // extern "C"
