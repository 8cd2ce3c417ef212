// com.kestrum.tavrel.graph.PoCircleArcThreePts, a 2D arc through three points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArcThreePts.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcThreePts_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArcThreePts>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcThreePts_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoCircleArcThreePts, SbVec2f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcThreePts_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArcThreePts>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcThreePts_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArcThreePts>();
}

}  // extern "C"
