// com.kestrum.tavrel.graph.PoNonLinearValueLegend2: a value legend between two corners; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNonLinearValueLegend2.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend2_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoNonLinearValueLegend2>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend2_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoNonLinearValueLegend2>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend2_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNonLinearValueLegend2>();
}

// The corners are converted ReadWrite and copied back unchanged.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend2_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2) {
  return tavrel::constructFromJava<PoNonLinearValueLegend2>(env, tavrel::point2(corner1), tavrel::point2(corner2));
}

}  // extern "C"
