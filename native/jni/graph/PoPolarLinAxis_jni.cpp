// com.kestrum.tavrel.graph.PoPolarLinAxis, constructor functions, number format and step.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoPolarLinAxis.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPolarLinAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPolarLinAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPolarLinAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_ctorImpl1(JNIEnv*, jclass, jfloat x0, jfloat y0,
                                                                               jfloat x1, jfloat y1, jfloat step) {
  return tavrel::construct<PoPolarLinAxis>(x0, y0, x1, y1, step);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_setFormatImpl(JNIEnv*, jobject, jlong handle,
                                                                                  jlong object) {
  tavrel::setLink(handle, &PoPolarLinAxis::setFormat, object);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoPolarLinAxis::getFormat);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PoPolarLinAxis_getStepImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fromHandle<const PoPolarLinAxis>(handle)->getStep();
}

// PoPolarLinAxis.GradFits

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLinAxis_00024GradFits_getGRADFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLinAxis::GRADFIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLinAxis_00024GradFits_getGRADUNFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLinAxis::GRADUNFIT);
}

}  // extern "C"
