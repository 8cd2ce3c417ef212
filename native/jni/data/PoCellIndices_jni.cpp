// Node indices of one cell.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCellIndices.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellIndices_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCellIndices>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoCellIndices_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellIndices>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellIndices_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCellIndices>();
}

}  // extern "C"
