// Start-up of the extension, called once by the Java package's start-up class.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/DebugOutput.h>
#include <Tavrel/PoTavrel.h>

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" JNIEXPORT void JNICALL Java_com_kestrum_tavrel_internal_JarInitializer_initNative(JNIEnv*, jclass) {
  PRINTDBG("----> PoTavrel init\n");
  PoTavrel::init();
}
