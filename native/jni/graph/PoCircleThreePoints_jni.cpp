// com.kestrum.tavrel.graph.PoCircleThreePoints, a 2D circle through three points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleThreePoints.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleThreePoints_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleThreePoints>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleThreePoints_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoCircleThreePoints, SbVec2f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleThreePoints_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleThreePoints>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleThreePoints_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleThreePoints>();
}

}  // extern "C"
