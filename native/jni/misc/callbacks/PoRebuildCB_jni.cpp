// Constructor function of the rebuild callback bridge. The bridge is made
// without a Java peer; the binding core records the Java callback object in
// it afterwards.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>

#include "callbacks/PoRebuildCallback.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_misc_callbacks_PoRebuildCB_constructor(JNIEnv*, jclass) {
  return tavrel::construct<PoRebuildCallback>();
}

}  // extern "C"
