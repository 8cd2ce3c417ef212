// Start-up of the extension, called once by the Java package's start-up class.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include "common/DebugLine.h"
#include <Tavrel/PoTavrel.h>

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" JNIEXPORT void JNICALL Java_com_kestrum_tavrel_internal_JarInitializer_initNative(JNIEnv*, jclass) {
  tavrel::printDebug("----> PoTavrel init\n");
  PoTavrel::init();
}
