// com.kestrum.tavrel.nodes.PoEllipticProfile: a profile on an ellipse, its constructor function and
// type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoEllipticProfile.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoEllipticProfile_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoEllipticProfile>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoEllipticProfile_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoEllipticProfile>(env);
}

}  // extern "C"
