// com.kestrum.tavrel.nodes.PoLabelHints: a property node that lays out the labels of the graphs
// after it, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLabelHints.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLabelHints>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoLabelHints>(env);
}

// PoLabelHints.LabelPaths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024LabelPaths_getPATHRIGHTNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoLabelHints::PATHRIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024LabelPaths_getPATHLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelHints::PATHLEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024LabelPaths_getPATHUPNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelHints::PATHUP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024LabelPaths_getPATHDOWNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelHints::PATHDOWN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024LabelPaths_getPATHDEPENDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoLabelHints::PATHDEPEND);
}

// PoLabelHints.Justifications

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024Justifications_getLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLabelHints::LEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024Justifications_getCENTERNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoLabelHints::CENTER);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024Justifications_getRIGHTNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoLabelHints::RIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoLabelHints_00024Justifications_getDEPENDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoLabelHints::DEPEND);
}

}  // extern "C"
