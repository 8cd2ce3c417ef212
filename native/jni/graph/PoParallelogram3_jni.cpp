// com.kestrum.tavrel.graph.PoParallelogram3, a 3D parallelogram from three corners.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoParallelogram3.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram3_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoParallelogram3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram3_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoParallelogram3, SbVec3f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoParallelogram3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoParallelogram3>();
}

}  // extern "C"
