// com.kestrum.tavrel.graph.PoCircleArc3CtrPtAngle, a 3D arc from its centre, start point, angle and
// normal.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArc3CtrPtAngle.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrPtAngle_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArc3CtrPtAngle>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrPtAngle_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloatArray point, jfloat angle, jfloatArray normal) {
  return tavrel::constructFromPoints<PoCircleArc3CtrPtAngle, SbVec3f>(env, center, point, angle, normal);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrPtAngle_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArc3CtrPtAngle>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrPtAngle_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArc3CtrPtAngle>();
}

}  // extern "C"
