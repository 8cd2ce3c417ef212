// com.kestrum.tavrel.graph.PoCircle3ThreePoints, a 3D circle through three points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircle3ThreePoints.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3ThreePoints_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircle3ThreePoints>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3ThreePoints_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoCircle3ThreePoints, SbVec3f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircle3ThreePoints_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircle3ThreePoints>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3ThreePoints_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircle3ThreePoints>();
}

}  // extern "C"
