// com.kestrum.tavrel.graph.PoCurve: a 2D curve from a count and SbVec2f points; class-level
// getters and the filter and representation enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCurve.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCurve_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCurve>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCurve>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCurve>();
}

// The toolkit gets numPoints, not the array's length.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve_ctorImpl1(
    JNIEnv* env, jclass, jint numPoints, jobjectArray points, jint curveRep) {
  return tavrel::constructFromJava<PoCurve>(env, numPoints, tavrel::points2(points),
                                            tavrel::as<PoCurve::CurveRep>(curveRep));
}

// PoCurve.FilterTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getINACTIVENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::INACTIVE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getALLPOINTSNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::ALLPOINTS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getINDEXPERIODNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::INDEXPERIOD);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getINDEXLISTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::INDEXLIST);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getXPERIODNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::XPERIOD);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024FilterTypes_getXLISTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::XLIST);
}

// PoCurve.CurveReps

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVENONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVENONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVEPOLYLINENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVEPOLYLINE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVESMOOTHNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVESMOOTH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVESTAIRSXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVESTAIRSX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVESTAIRSYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVESTAIRSY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVEHISTOXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVEHISTOX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVEHISTOYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVEHISTOY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVESTAIRS2XNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVESTAIRS2X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve_00024CurveReps_getCURVESTAIRS2YNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve::CURVESTAIRS2Y);
}

}  // extern "C"
