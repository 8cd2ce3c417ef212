// Particles drawn as line pulses.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamLineMotion.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamLineMotion_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamLineMotion>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamLineMotion_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamLineMotion>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamLineMotion_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamLineMotion>();
}

}  // extern "C"
