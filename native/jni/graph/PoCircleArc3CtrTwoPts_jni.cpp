// com.kestrum.tavrel.graph.PoCircleArc3CtrTwoPts, a 3D arc from its centre and two points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArc3CtrTwoPts.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrTwoPts_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleArc3CtrTwoPts>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrTwoPts_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloatArray p1, jfloatArray p2) {
  return tavrel::constructFromPoints<PoCircleArc3CtrTwoPts, SbVec3f>(env, center, p1, p2);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrTwoPts_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArc3CtrTwoPts>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3CtrTwoPts_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArc3CtrTwoPts>();
}

}  // extern "C"
