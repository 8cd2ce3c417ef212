// com.kestrum.tavrel.nodes.PoMesh1DHints: a property node that tells the 1D-mesh graphs after it
// how to join their points, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh1DHints.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMesh1DHints>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh1DHints>(env);
}

// PoMesh1DHints.GeomInterpretations

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getASISNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::ASIS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getSMOOTHNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::SMOOTH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getSTAIRSXNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::STAIRSX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getSTAIRSYNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::STAIRSY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getHISTOXNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::HISTOX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getHISTOYNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::HISTOY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getSTAIRS2XNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::STAIRS2X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DHints_00024GeomInterpretations_getSTAIRS2YNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMesh1DHints::STAIRS2Y);
}

}  // extern "C"
