// com.kestrum.tavrel.nodes.PoMiscTextAttr: a property node that gives the graphs after it their
// text attributes, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMiscTextAttr.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoMiscTextAttr_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMiscTextAttr>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoMiscTextAttr_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMiscTextAttr>(env);
}

// PoMiscTextAttr.LineLengths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMiscTextAttr_00024LineLengths_getLINELENGTHMAXNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMiscTextAttr::LINELENGTHMAX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMiscTextAttr_00024LineLengths_getLINELENGTHMINNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMiscTextAttr::LINELENGTHMIN);
}

}  // extern "C"
