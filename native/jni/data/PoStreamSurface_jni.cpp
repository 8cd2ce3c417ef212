// Stream surfaces.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoStreamSurface.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamSurface_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoStreamSurface>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoStreamSurface_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoStreamSurface>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoStreamSurface_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoStreamSurface>();
}

}  // extern "C"
