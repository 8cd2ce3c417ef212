// com.kestrum.tavrel.nodes.PoNonLinearDataMapping: a data-mapping node of levels, its constructor
// function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNonLinearDataMapping.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoNonLinearDataMapping>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoNonLinearDataMapping_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoNonLinearDataMapping>(env);
}

}  // extern "C"
