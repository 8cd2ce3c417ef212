// com.kestrum.tavrel.graph.PoGeneralizedBar: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGeneralizedBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGeneralizedBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGeneralizedBar>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedBar_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGeneralizedBar>();
}

}  // extern "C"
