// com.kestrum.tavrel.graph.PoBar: class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoBar.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoBar_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoBar>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBar_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoBar>();
}

// PoBar.Orientations

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBar_00024Orientations_getHORIZONTALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBar::HORIZONTAL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBar_00024Orientations_getVERTICALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBar::VERTICAL);
}

}  // extern "C"
