// com.kestrum.tavrel.nodes.PoSquareProfile: a square profile, its constructor function and type
// name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSquareProfile.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoSquareProfile_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSquareProfile>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoSquareProfile_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSquareProfile>(env);
}

}  // extern "C"
