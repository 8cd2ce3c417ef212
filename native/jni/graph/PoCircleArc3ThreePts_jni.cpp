// com.kestrum.tavrel.graph.PoCircleArc3ThreePts, a 3D arc through three points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArc3ThreePts.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3ThreePts_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArc3ThreePts>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3ThreePts_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoCircleArc3ThreePts, SbVec3f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3ThreePts_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArc3ThreePts>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3ThreePts_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArc3ThreePts>();
}

}  // extern "C"
