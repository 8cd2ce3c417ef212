// com.kestrum.tavrel.graph.PoCylindricalBar: its default constructor and class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCylindricalBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCylindricalBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCylindricalBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCylindricalBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCylindricalBar>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCylindricalBar_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCylindricalBar>();
}

}  // extern "C"
