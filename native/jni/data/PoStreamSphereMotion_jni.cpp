// Particles drawn as spheres.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamSphereMotion.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamSphereMotion_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamSphereMotion>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamSphereMotion_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamSphereMotion>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamSphereMotion_getClassNodekitCatalogImpl(
    JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamSphereMotion>();
}

}  // extern "C"
