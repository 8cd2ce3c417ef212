// com.kestrum.tavrel.graph.PoCurve3: a 3D curve from a count and SbVec3f points; class-level
// getters and the representations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCurve3.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCurve3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCurve3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCurve3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_ctorImpl1(
    JNIEnv* env, jclass, jint numPoints, jobjectArray points, jint curveRep) {
  return tavrel::constructFromJava<PoCurve3>(env, numPoints, tavrel::points3(points),
                                             tavrel::as<PoCurve3::CurveRep>(curveRep));
}

// PoCurve3.CurveReps

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_00024CurveReps_getCURVENONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve3::CURVENONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_00024CurveReps_getCURVEPOLYLINENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve3::CURVEPOLYLINE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurve3_00024CurveReps_getCURVESMOOTHNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurve3::CURVESMOOTH);
}

}  // extern "C"
