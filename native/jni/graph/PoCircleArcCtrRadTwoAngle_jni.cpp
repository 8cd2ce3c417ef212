// com.kestrum.tavrel.graph.PoCircleArcCtrRadTwoAngle, a 2D arc from its centre, radius and two
// angles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArcCtrRadTwoAngle.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrRadTwoAngle_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArcCtrRadTwoAngle>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrRadTwoAngle_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloat radius, jfloat angle1, jfloat angle2) {
  return tavrel::constructFromPoints<PoCircleArcCtrRadTwoAngle, SbVec2f>(env, center, radius, angle1, angle2);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrRadTwoAngle_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArcCtrRadTwoAngle>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrRadTwoAngle_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArcCtrRadTwoAngle>();
}

}  // extern "C"
