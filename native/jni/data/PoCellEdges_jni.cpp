// Edges of one cell.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCellEdges.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellEdges_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCellEdges>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoCellEdges_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellEdges>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoCellEdges_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCellEdges>();
}

}  // extern "C"
