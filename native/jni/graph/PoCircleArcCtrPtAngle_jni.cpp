// com.kestrum.tavrel.graph.PoCircleArcCtrPtAngle, a 2D arc from its centre, start point and angle.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArcCtrPtAngle.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrPtAngle_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArcCtrPtAngle>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrPtAngle_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloatArray point, jfloat angle) {
  return tavrel::constructFromPoints<PoCircleArcCtrPtAngle, SbVec2f>(env, center, point, angle);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrPtAngle_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArcCtrPtAngle>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrPtAngle_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArcCtrPtAngle>();
}

}  // extern "C"
