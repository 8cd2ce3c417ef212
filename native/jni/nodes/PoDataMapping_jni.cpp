// com.kestrum.tavrel.nodes.PoDataMapping: base of the data-mapping property nodes and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoDataMapping.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoDataMapping_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDataMapping>(env);
}

}  // extern "C"
