// com.kestrum.tavrel.graph.PoQuorvex, base of the point-set, curve, label and shape nodes: class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoQuorvex.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoQuorvex_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoQuorvex>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoQuorvex_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoQuorvex>();
}

}  // extern "C"
