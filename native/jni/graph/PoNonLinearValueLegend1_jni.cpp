// com.kestrum.tavrel.graph.PoNonLinearValueLegend1: a value legend between two corners; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNonLinearValueLegend1.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend1_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoNonLinearValueLegend1>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend1_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoNonLinearValueLegend1>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend1_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNonLinearValueLegend1>();
}

// The corners are converted ReadWrite and copied back unchanged.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend1_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2) {
  return tavrel::constructFromJava<PoNonLinearValueLegend1>(env, tavrel::point2(corner1), tavrel::point2(corner2));
}

}  // extern "C"
