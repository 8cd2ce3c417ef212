// com.kestrum.tavrel.graph.PoNonLinearValueLegend3: a value legend between two corners; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNonLinearValueLegend3.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoNonLinearValueLegend3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend3_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoNonLinearValueLegend3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend3_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNonLinearValueLegend3>();
}

// The corners are converted ReadWrite and copied back unchanged.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoNonLinearValueLegend3_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2) {
  return tavrel::constructFromJava<PoNonLinearValueLegend3>(env, tavrel::point2(corner1), tavrel::point2(corner2));
}

}  // extern "C"
