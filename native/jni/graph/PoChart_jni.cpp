// com.kestrum.tavrel.graph.PoChart, base of the charts: class-level getters
// and the colour bindings.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoChart.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoChart_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoChart>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoChart_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoChart>();
}

// PoChart.ColorBindings

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoChart_00024ColorBindings_getINHERITEDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoChart::INHERITED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoChart_00024ColorBindings_getPERVERTEXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoChart::PERVERTEX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoChart_00024ColorBindings_getPERPARTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoChart::PERPART);
}

}  // extern "C"
