// com.kestrum.tavrel.graph.PoScatter: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoScatter.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoScatter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoScatter>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoScatter_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoScatter>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoScatter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoScatter>();
}

}  // extern "C"
