// com.kestrum.tavrel.nodes.PoNonLinearDataMapping2: a data-mapping node given by values and
// colours, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNonLinearDataMapping2.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping2_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNonLinearDataMapping2>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping2_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoNonLinearDataMapping2>(env);
}

// PoNonLinearDataMapping2.Types

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping2_00024Types_getNONLINEARPERLEVELNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoNonLinearDataMapping2::NONLINEARPERLEVEL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping2_00024Types_getLINEARPERLEVELNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoNonLinearDataMapping2::LINEARPERLEVEL);
}

}  // extern "C"
