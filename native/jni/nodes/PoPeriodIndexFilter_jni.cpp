// com.kestrum.tavrel.nodes.PoPeriodIndexFilter: a 1D-mesh filter keeping every period-th point, its
// constructor function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPeriodIndexFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodIndexFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPeriodIndexFilter>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoPeriodIndexFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoPeriodIndexFilter>(env);
}

}  // extern "C"
