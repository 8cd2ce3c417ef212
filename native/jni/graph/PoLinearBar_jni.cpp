// com.kestrum.tavrel.graph.PoLinearBar: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLinearBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLinearBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLinearBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLinearBar>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearBar_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLinearBar>();
}

}  // extern "C"
