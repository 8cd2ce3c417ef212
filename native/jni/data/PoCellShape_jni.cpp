// Shape of one cell.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCellShape.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellShape_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCellShape>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoCellShape_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellShape>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellShape_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCellShape>();
}

}  // extern "C"
