// com.kestrum.tavrel.graph.PoParallelogram, a 2D parallelogram from three corners.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoParallelogram.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoParallelogram>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray p1, jfloatArray p2, jfloatArray p3) {
  return tavrel::constructFromPoints<PoParallelogram, SbVec2f>(env, p1, p2, p3);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoParallelogram>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoParallelogram_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoParallelogram>();
}

}  // extern "C"
