// com.kestrum.tavrel.nodes.PoBevelEdge: a property node that bevels the edges of the shapes after
// it, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoBevelEdge.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoBevelEdge_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoBevelEdge>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoBevelEdge_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoBevelEdge>(env);
}

// PoBevelEdge.RadiusFlags

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoBevelEdge_00024RadiusFlags_getABSOLUTERADIUSNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoBevelEdge::ABSOLUTERADIUS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoBevelEdge_00024RadiusFlags_getPERCENTAGERADIUSNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoBevelEdge::PERCENTAGERADIUS);
}

}  // extern "C"
