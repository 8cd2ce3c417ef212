// com.kestrum.tavrel.nodes.PoProfileCoordinate2: a profile given by its points, its constructor
// function and type name.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoProfileCoordinate2.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoProfileCoordinate2_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoProfileCoordinate2>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoProfileCoordinate2_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoProfileCoordinate2>(env);
}

}  // extern "C"
