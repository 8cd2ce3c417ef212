// com.kestrum.tavrel.graph.PoAutoValueLegend: class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoAutoValueLegend.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoAutoValueLegend_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoAutoValueLegend>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAutoValueLegend_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoAutoValueLegend>();
}

}  // extern "C"
