// com.kestrum.tavrel.graph.PoCurveFilling: class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCurveFilling.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCurveFilling_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCurveFilling>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurveFilling_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCurveFilling>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurveFilling_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCurveFilling>();
}

// PoCurveFilling.Orientations

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurveFilling_00024Orientations_getHORIZONTALNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurveFilling::HORIZONTAL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurveFilling_00024Orientations_getVERTICALNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurveFilling::VERTICAL);
}

}  // extern "C"
