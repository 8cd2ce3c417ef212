// com.kestrum.tavrel.graph.PoPolarAxis, base of the polar axes: the multiplying factor.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPolarAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPolarAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPolarAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPolarAxis>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPolarAxis_getMultFactorImpl(JNIEnv* env, jobject, jlong handle,
                                                                                   jintArray position,
                                                                                   jfloatArray factor) {
  tavrel::multFactor<PoPolarAxis>(env, handle, position, factor);
}

// PoPolarAxis.MultFactorPositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarAxis_00024MultFactorPositions_getMULTFACTORSTARTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarAxis::MULTFACTORSTART);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarAxis_00024MultFactorPositions_getMULTFACTORENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarAxis::MULTFACTOREND);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarAxis_00024MultFactorPositions_getMULTFACTOREXTRNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarAxis::MULTFACTOREXTR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarAxis_00024MultFactorPositions_getMULTFACTORGRADNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarAxis::MULTFACTORGRAD);
}

}  // extern "C"
