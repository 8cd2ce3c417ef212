// Base of the node kits that draw: class-level getters only.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoDessvane.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoDessvane_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDessvane>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoDessvane_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoDessvane>();
}

}  // extern "C"
