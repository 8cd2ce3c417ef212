// com.kestrum.tavrel.graph.PoTube: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoTube.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoTube_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoTube>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTube_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoTube>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTube_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoTube>();
}

}  // extern "C"
