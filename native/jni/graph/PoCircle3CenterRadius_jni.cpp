// com.kestrum.tavrel.graph.PoCircle3CenterRadius, a 3D circle from its centre, radius and normal
// (the radius between the two vectors, in the toolkit's order).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircle3CenterRadius.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3CenterRadius_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircle3CenterRadius>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3CenterRadius_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloat radius, jfloatArray normal) {
  return tavrel::constructFromPoints<PoCircle3CenterRadius, SbVec3f>(env, center, radius, normal);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircle3CenterRadius_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircle3CenterRadius>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3CenterRadius_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircle3CenterRadius>();
}

}  // extern "C"
