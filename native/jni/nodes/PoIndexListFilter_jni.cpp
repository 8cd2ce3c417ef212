// com.kestrum.tavrel.nodes.PoIndexListFilter: a 1D-mesh filter keeping the points at listed
// indices, its constructor function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIndexListFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIndexListFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIndexListFilter>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIndexListFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIndexListFilter>(env);
}

}  // extern "C"
