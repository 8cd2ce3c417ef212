// Base of the particle motions along stream lines: class-level getters only.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamParticleMotion.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamParticleMotion_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamParticleMotion>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamParticleMotion_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamParticleMotion>();
}

}  // extern "C"
