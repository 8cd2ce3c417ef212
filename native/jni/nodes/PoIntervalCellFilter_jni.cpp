// com.kestrum.tavrel.nodes.PoIntervalCellFilter: a cell filter keeping the cells whose value lies
// in an interval, its constructor function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIntervalCellFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIntervalCellFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIntervalCellFilter>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIntervalCellFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIntervalCellFilter>(env);
}

}  // extern "C"
