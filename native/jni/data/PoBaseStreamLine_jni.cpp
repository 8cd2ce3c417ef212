// Base of the stream representations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoBaseStreamLine.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoBaseStreamLine_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoBaseStreamLine>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoBaseStreamLine_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoBaseStreamLine>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoBaseStreamLine_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoBaseStreamLine>();
}

// PoBaseStreamLine.IntegrationDirections

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoBaseStreamLine_00024IntegrationDirections_getFORWARDNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBaseStreamLine::FORWARD);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoBaseStreamLine_00024IntegrationDirections_getBACKWARDNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoBaseStreamLine::BACKWARD);
}

}  // extern "C"
