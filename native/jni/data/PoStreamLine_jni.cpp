// Stream lines.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamLine.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamLine_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamLine>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamLine_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamLine>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamLine_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamLine>();
}

}  // extern "C"
