// Facets of one cell.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCellFacets.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellFacets_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCellFacets>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoCellFacets_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellFacets>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellFacets_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCellFacets>();
}

}  // extern "C"
