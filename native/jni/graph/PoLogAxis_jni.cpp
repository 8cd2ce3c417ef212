// com.kestrum.tavrel.graph.PoLogAxis, constructor functions, multiplying factor and the
// logarithmic graduation.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLogAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLogAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLogAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLogAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                          jfloat end, jint type, jint decadeListDef,
                                                                          jshortArray decades, jint count) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const unsigned short* d = in.decades(decades);
    return new PoLogAxis{s, end, toEnum<PoCartesianAxis::Type>(type), toEnum<PoLogAxis::DecadeListDef>(decadeListDef), d,
                         tavrel::narrowCount(count), 0.0f, 0.0f};
  });
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_ctorImpl2(JNIEnv* env, jclass, jfloatArray start,
                                                                          jfloat end, jint type, jint decadeListDef,
                                                                          jshortArray decades, jint count,
                                                                          jfloat expStart, jfloat expEnd) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const unsigned short* d = in.decades(decades);
    return new PoLogAxis{s, end, toEnum<PoCartesianAxis::Type>(type), toEnum<PoLogAxis::DecadeListDef>(decadeListDef), d,
                         tavrel::narrowCount(count), expStart, expEnd};
  });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_getMultFactorImpl(JNIEnv* env, jobject, jlong handle,
                                                                                 jintArray position,
                                                                                 jfloatArray factor) {
  tavrel::multFactor<PoLogAxis>(env, handle, position, factor);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLogAxis_getLogGradImpl(JNIEnv* env, jobject, jlong handle,
                                                                              jshortArray count, jshortArray decades,
                                                                              jintArray tenPowerRep,
                                                                              jintArray decadeRep, jobjectArray text,
                                                                              jfloatArray value) {
  tavrel::logGrad<PoLogAxis>(env, handle, count, decades, tenPowerRep, decadeRep, text, value);
}

// PoLogAxis.DecadeListDefs

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeListDefs_getDECADELISTAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADELISTAUTO);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeListDefs_getDECADELISTNONAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADELISTNONAUTO);
}

// PoLogAxis.TenPowGradReps

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024TenPowGradReps_getTENPOWERPOW10Native(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::TENPOWERPOW10);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024TenPowGradReps_getTENPOWERDECIMALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::TENPOWERDECIMAL);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024TenPowGradReps_getTENPOWERAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::TENPOWERAUTO);
}

// PoLogAxis.DecadeReps

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeReps_getDECADENONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADENONE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeReps_getDECADEASTENPOWERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADEASTENPOWER);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeReps_getDECADEDECIMALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADEDECIMAL);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeReps_getDECADEDIGITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADEDIGIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024DecadeReps_getDECADEAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::DECADEAUTO);
}

// PoLogAxis.MultFactorPositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024MultFactorPositions_getMULTFACTORSTARTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::MULTFACTORSTART);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024MultFactorPositions_getMULTFACTORENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::MULTFACTOREND);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024MultFactorPositions_getMULTFACTOREXTRNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::MULTFACTOREXTR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoLogAxis_00024MultFactorPositions_getMULTFACTORGRADNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLogAxis::MULTFACTORGRAD);
}

}  // extern "C"
