// com.kestrum.tavrel.graph.PoTimeAxis, constructor functions and the date mapping.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PoTimeAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoTimeAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoTimeAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoTimeAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_ctorImpl1(JNIEnv* env, jclass, jstring date1,
                                                                           jstring date2, jfloat position,
                                                                           jint type) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const char* from = in.text(date1);
    const char* to = in.text(date2);
    return new PoTimeAxis{from, to, position, toEnum<PoTimeAxis::Type>(type)};
  });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_setDateFormatMappingImpl(JNIEnv*, jobject,
                                                                                         jlong handle, jlong object) {
  tavrel::setLink(handle, &PoTimeAxis::setDateFormatMapping, object);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoTimeAxis_getDateFormatMappingImpl(JNIEnv*, jobject,
                                                                                          jlong handle) {
  return tavrel::getLink(handle, &PoTimeAxis::getDateFormatMapping);
}

// PoTimeAxis.Languages

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Languages_getENGLISHNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::ENGLISH);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Languages_getFRANCAISNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::FRANCAIS);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Languages_getDEUTSCHNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::DEUTSCH);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Languages_getESPANOLNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::ESPANOL);
}

// PoTimeAxis.GradFits

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024GradFits_getGRADFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::GRADFIT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024GradFits_getGRADUNFITNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::GRADUNFIT);
}

// PoTimeAxis.Types

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Types_getXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::X);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoTimeAxis_00024Types_getYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoTimeAxis::Y);
}

}  // extern "C"
