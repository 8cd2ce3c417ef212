// com.kestrum.tavrel.graph.PoConicBar: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoConicBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoConicBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoConicBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoConicBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoConicBar>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoConicBar_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoConicBar>();
}

}  // extern "C"
