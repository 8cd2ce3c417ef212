// com.kestrum.tavrel.graph.PoLinearAxis, constructor functions, number format, step and
// multiplying factor.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoLinearAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLinearAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLinearAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLinearAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                             jfloat end, jint type, jfloat step) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    return new PoLinearAxis{s, end, toEnum<PoCartesianAxis::Type>(type), 0.0f, 0.0f, step};
  });
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_ctorImpl2(JNIEnv* env, jclass, jfloatArray start,
                                                                             jfloat end, jint type, jfloat gradStart,
                                                                             jfloat gradEnd, jfloat step) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    return new PoLinearAxis{s, end, toEnum<PoCartesianAxis::Type>(type), gradStart, gradEnd, step};
  });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_setFormatImpl(JNIEnv*, jobject, jlong handle,
                                                                                jlong object) {
  tavrel::setLink(handle, &PoLinearAxis::setFormat, object);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoLinearAxis::getFormat);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_getStepImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fromHandle<const PoLinearAxis>(handle)->getStep();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLinearAxis_getMultFactorImpl(JNIEnv* env, jobject,
                                                                                    jlong handle, jintArray position,
                                                                                    jfloatArray factor) {
  tavrel::multFactor<PoLinearAxis>(env, handle, position, factor);
}

// PoLinearAxis.GradFits

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024GradFits_getGRADFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::GRADFIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024GradFits_getGRADUNFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::GRADUNFIT);
}

// PoLinearAxis.MultFactorPositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024MultFactorPositions_getMULTFACTORSTARTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::MULTFACTORSTART);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024MultFactorPositions_getMULTFACTORENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::MULTFACTOREND);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024MultFactorPositions_getMULTFACTOREXTRNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::MULTFACTOREXTR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLinearAxis_00024MultFactorPositions_getMULTFACTORGRADNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLinearAxis::MULTFACTORGRAD);
}

}  // extern "C"
