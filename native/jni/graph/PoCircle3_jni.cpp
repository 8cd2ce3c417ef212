// com.kestrum.tavrel.graph.PoCircle3, base of the 3D circles: class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircle3.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircle3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircle3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircle3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircle3>();
}

}  // extern "C"
