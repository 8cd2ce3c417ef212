// com.kestrum.tavrel.nodes.PoNumericDisplayFormat: a property node that tells the graphs after it
// how to write numbers, its constructor function, type name and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNumericDisplayFormat.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoNumericDisplayFormat_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNumericDisplayFormat>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoNumericDisplayFormat_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoNumericDisplayFormat>(env);
}

// PoNumericDisplayFormat.FormatTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoNumericDisplayFormat_00024FormatTypes_getAUTOFORMATNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoNumericDisplayFormat::AUTOFORMAT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoNumericDisplayFormat_00024FormatTypes_getFLOATFORMATNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoNumericDisplayFormat::FLOATFORMAT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoNumericDisplayFormat_00024FormatTypes_getINTEGERFORMATNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoNumericDisplayFormat::INTEGERFORMAT);
}

}  // extern "C"
