// Natives of the binding core's own Java classes (com.kestrum.corvel.*).

#include <CorvelJNI/DebugOutput.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>
#include <mutex>

#include "ManagedObjectsClass.h"

namespace corvel {
namespace {
ManagedObjectsClass resolved;
std::once_flag resolveOnce;
}  // namespace

ManagedObjectsClass& managedObjectsClass(JNIEnv* env) {
  std::call_once(resolveOnce, [env] {
    jclass local = env->FindClass("com/kestrum/corvel/misc/ManagedObjects");
    if (local == nullptr) return;
    resolved.cls = static_cast<jclass>(env->NewGlobalRef(local));
    resolved.getManagedObject =
        env->GetStaticMethodID(local, "getManagedObject", "(Ljava/lang/Class;J)Ljava/lang/Object;");
    resolved.classNamed = env->GetStaticMethodID(local, "classNamed", "(Ljava/lang/String;)Ljava/lang/Class;");
    resolved.createInstance = env->GetStaticMethodID(local, "createInstance", "(Ljava/lang/String;)J");
    env->DeleteLocalRef(local);
  });
  return resolved;
}
}  // namespace corvel

extern "C" {

JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* vm, void*) {
  corvel::rememberJavaVM(vm);
  JNIEnv* env = nullptr;
  if (vm->GetEnv(reinterpret_cast<void**>(&env), JNI_VERSION_1_8) == JNI_OK) {
    // Resolve the Java tables now, with the class loader of the loading class.
    corvel::managedObjectsClass(env);
    env->ExceptionClear();
  }
  return JNI_VERSION_1_8;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_DebugOutput_setModeNative(JNIEnv*, jclass, jint mode) {
  corvel::setDebugMode(static_cast<corvel::DebugMode>(mode));
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_misc_DebugOutput_getModeNative(JNIEnv*, jclass) {
  return static_cast<jint>(corvel::getDebugMode());
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_corvel_misc_DebugOutput_takeCapturedNative(JNIEnv* env, jclass) {
  std::vector<std::string> lines = corvel::takeCapturedDebugLines();
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray result = env->NewObjectArray(static_cast<jsize>(lines.size()), stringClass, nullptr);
  for (std::size_t i = 0; i < lines.size() && result != nullptr; ++i) {
    jstring s = StringHelper::fromNativeString(env, lines[i].c_str());
    env->SetObjectArrayElement(result, static_cast<jsize>(i), s);
    env->DeleteLocalRef(s);
  }
  env->DeleteLocalRef(stringClass);
  return result;
}

// Records a weak reference to the Java peer of a native object whose first
// part is an ICustomClass (the callback bridges).
JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_NativePeers_bindPeerNative(JNIEnv* env, jclass, jlong address,
                                                                              jobject peer) {
  reinterpret_cast<ICustomClass*>(static_cast<intptr_t>(address))->initJavaObject(env, peer, true);
}

}  // extern "C"
