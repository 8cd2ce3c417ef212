// com.kestrum.tavrel.graph.PoGeneralizedScatter: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGeneralizedScatter.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedScatter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGeneralizedScatter>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedScatter_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGeneralizedScatter>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGeneralizedScatter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGeneralizedScatter>();
}

}  // extern "C"
