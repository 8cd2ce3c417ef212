// com.kestrum.tavrel.graph.PoRibbon: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoRibbon.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoRibbon_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoRibbon>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoRibbon_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoRibbon>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoRibbon_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoRibbon>();
}

}  // extern "C"
