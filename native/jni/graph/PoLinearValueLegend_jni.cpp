// com.kestrum.tavrel.graph.PoLinearValueLegend: a value legend between two corners with a value
// distribution; class-level getters and the distributions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLinearValueLegend.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLinearValueLegend>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLinearValueLegend>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLinearValueLegend>();
}

// The corners are converted ReadWrite and copied back unchanged.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2, jint distribution) {
  return tavrel::constructFromJava<PoLinearValueLegend>(
      env, tavrel::point2(corner1), tavrel::point2(corner2),
      tavrel::as<PoLinearValueLegend::ValueDistribution>(distribution));
}

// PoLinearValueLegend.ValueDistributions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_00024ValueDistributions_getALLVALUESNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearValueLegend::ALLVALUES);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_00024ValueDistributions_getLINEARVALUESNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearValueLegend::LINEARVALUES);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLinearValueLegend_00024ValueDistributions_getMINMAXVALUESNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearValueLegend::MINMAXVALUES);
}

}  // extern "C"
