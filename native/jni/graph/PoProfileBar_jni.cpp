// com.kestrum.tavrel.graph.PoProfileBar: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoProfileBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoProfileBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoProfileBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoProfileBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoProfileBar>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoProfileBar_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoProfileBar>();
}

}  // extern "C"
