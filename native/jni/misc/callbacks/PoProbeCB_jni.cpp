// Constructor function of the probe callback bridge. The bridge is made
// without a Java peer; the binding core records the Java callback object in
// it afterwards.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>

#include "callbacks/PoProbeCallback.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_misc_callbacks_PoProbeCB_constructor(JNIEnv*, jclass) {
  return tavrel::construct<PoProbeCallback>();
}

}  // extern "C"
