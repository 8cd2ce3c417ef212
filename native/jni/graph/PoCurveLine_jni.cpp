// com.kestrum.tavrel.graph.PoCurveLine: class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCurveLine.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCurveLine_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCurveLine>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurveLine_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCurveLine>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCurveLine_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCurveLine>();
}

// PoCurveLine.ThicknessBindings

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurveLine_00024ThicknessBindings_getPERPARTTHICKNESSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurveLine::PERPARTTHICKNESS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCurveLine_00024ThicknessBindings_getPERVERTEXTHICKNESSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoCurveLine::PERVERTEXTHICKNESS);
}

}  // extern "C"
