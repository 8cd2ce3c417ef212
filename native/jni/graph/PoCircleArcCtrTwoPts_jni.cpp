// com.kestrum.tavrel.graph.PoCircleArcCtrTwoPts, a 2D arc from its centre and two points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArcCtrTwoPts.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrTwoPts_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArcCtrTwoPts>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrTwoPts_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloatArray p1, jfloatArray p2) {
  return tavrel::constructFromPoints<PoCircleArcCtrTwoPts, SbVec2f>(env, center, p1, p2);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrTwoPts_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArcCtrTwoPts>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArcCtrTwoPts_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArcCtrTwoPts>();
}

}  // extern "C"
