// The probe point's class-level methods; its callback setters are in PoMeshProbePoint_part_jni.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshProbePoint.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMeshProbePoint>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshProbePoint>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMeshProbePoint>();
}

}  // extern "C"
