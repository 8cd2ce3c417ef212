// Particles drawn as tadpoles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamTadpoleMotion.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamTadpoleMotion_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamTadpoleMotion>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamTadpoleMotion_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamTadpoleMotion>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamTadpoleMotion_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamTadpoleMotion>();
}

}  // extern "C"
