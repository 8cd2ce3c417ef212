// Particles drawn as points.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamPointMotion.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamPointMotion_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamPointMotion>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamPointMotion_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamPointMotion>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamPointMotion_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamPointMotion>();
}

}  // extern "C"
