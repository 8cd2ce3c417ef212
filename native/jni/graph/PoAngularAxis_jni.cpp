// com.kestrum.tavrel.graph.PoAngularAxis, constructor functions and the angle step.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoAngularAxis.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoAngularAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoAngularAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAngularAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoAngularAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAngularAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoAngularAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAngularAxis_ctorImpl1(JNIEnv*, jclass, jfloat centreX,
                                                                              jfloat centreY, jfloat radius,
                                                                              jfloat firstAngle, jfloat angleStep) {
  return tavrel::construct<PoAngularAxis>(centreX, centreY, radius, firstAngle, angleStep);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PoAngularAxis_getAngleStepImpl(JNIEnv*, jobject,
                                                                                      jlong handle) {
  return tavrel::fromHandle<const PoAngularAxis>(handle)->getAngleStep();
}

// PoAngularAxis.GradFits

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAngularAxis_00024GradFits_getGRADFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAngularAxis::GRADFIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAngularAxis_00024GradFits_getGRADUNFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAngularAxis::GRADUNFIT);
}

}  // extern "C"
