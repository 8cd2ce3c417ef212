// com.kestrum.tavrel.nodes.PoLinearDataMapping: a data-mapping node between two values, its
// constructor function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoLinearDataMapping.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoLinearDataMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoLinearDataMapping>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoLinearDataMapping_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoLinearDataMapping>(env);
}

}  // extern "C"
