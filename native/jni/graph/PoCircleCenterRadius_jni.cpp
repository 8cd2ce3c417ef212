// com.kestrum.tavrel.graph.PoCircleCenterRadius, a 2D circle from its centre and radius.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleCenterRadius.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleCenterRadius_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircleCenterRadius>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleCenterRadius_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloat radius) {
  return tavrel::constructFromPoints<PoCircleCenterRadius, SbVec2f>(env, center, radius);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleCenterRadius_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleCenterRadius>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleCenterRadius_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleCenterRadius>();
}

}  // extern "C"
