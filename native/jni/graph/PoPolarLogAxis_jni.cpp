// com.kestrum.tavrel.graph.PoPolarLogAxis, constructor functions and the logarithmic graduation.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPolarLogAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPolarLogAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPolarLogAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLogAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPolarLogAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLogAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPolarLogAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPolarLogAxis_ctorImpl1(JNIEnv* env, jclass, jfloat x0,
                                                                               jfloat y0, jfloat x1, jfloat y1,
                                                                               jint decadeListDef,
                                                                               jshortArray decades, jint count) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const unsigned short* d = in.decades(decades);
    return new PoPolarLogAxis{x0, y0, x1, y1, toEnum<PoPolarLogAxis::DecadeListDef>(decadeListDef), d,
                              tavrel::narrowCount(count)};
  });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPolarLogAxis_getLogGradImpl(JNIEnv* env, jobject, jlong handle,
                                                                                   jshortArray count,
                                                                                   jshortArray decades,
                                                                                   jintArray tenPowerRep,
                                                                                   jintArray decadeRep,
                                                                                   jobjectArray text,
                                                                                   jfloatArray value) {
  tavrel::logGrad<PoPolarLogAxis>(env, handle, count, decades, tenPowerRep, decadeRep, text, value);
}

// PoPolarLogAxis.DecadeListDefs

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeListDefs_getDECADELISTAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADELISTAUTO);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeListDefs_getDECADELISTNONAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADELISTNONAUTO);
}

// PoPolarLogAxis.TenPowGradReps

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024TenPowGradReps_getTENPOWERPOW10Native(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::TENPOWERPOW10);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024TenPowGradReps_getTENPOWERDECIMALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::TENPOWERDECIMAL);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024TenPowGradReps_getTENPOWERAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::TENPOWERAUTO);
}

// PoPolarLogAxis.DecadeReps

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeReps_getDECADENONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADENONE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeReps_getDECADEASTENPOWERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADEASTENPOWER);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeReps_getDECADEDECIMALNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADEDECIMAL);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeReps_getDECADEDIGITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADEDIGIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoPolarLogAxis_00024DecadeReps_getDECADEAUTONative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPolarLogAxis::DECADEAUTO);
}

}  // extern "C"
