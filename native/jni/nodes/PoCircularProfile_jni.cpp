// com.kestrum.tavrel.nodes.PoCircularProfile: a profile on a circle, its constructor function and
// type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircularProfile.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoCircularProfile_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCircularProfile>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoCircularProfile_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCircularProfile>(env);
}

}  // extern "C"
