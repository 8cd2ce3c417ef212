// com.kestrum.tavrel.nodes.PoProfile: base of the profiles (cross sections) and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoProfile.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoProfile_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoProfile>(env);
}

}  // extern "C"
