// com.kestrum.tavrel.nodes.PoMesh1DFilter: base of the filters of 1D meshes and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh1DFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoMesh1DFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh1DFilter>(env);
}

}  // extern "C"
