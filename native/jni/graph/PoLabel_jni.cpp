// com.kestrum.tavrel.graph.PoLabel: class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLabel.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLabel_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLabel>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabel_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLabel>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLabel_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLabel>();
}

// PoLabel.ValueTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024ValueTypes_getVALUENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::VALUE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024ValueTypes_getNAMENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::NAME);
}

// PoLabel.Positions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024Positions_getVALUEPOSNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::VALUEPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024Positions_getMIDDLEPOSNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::MIDDLEPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024Positions_getTHRESHOLDPOSNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::THRESHOLDPOS);
}

// PoLabel.AxisType

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024AxisType_getXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLabel_00024AxisType_getYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabel::Y);
}

}  // extern "C"
