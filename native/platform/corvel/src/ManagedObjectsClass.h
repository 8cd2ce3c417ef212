#pragma once

#include <jni.h>

namespace corvel {
// The Java class com.kestrum.corvel.misc.ManagedObjects and its two static
// methods, resolved once (global class reference).
struct ManagedObjectsClass {
  jclass cls = nullptr;
  jmethodID getManagedObject = nullptr;  // (Ljava/lang/String;J)Ljava/lang/Object;
  jmethodID createInstance = nullptr;    // (Ljava/lang/String;)J
};
ManagedObjectsClass& managedObjectsClass(JNIEnv* env);
void rememberJavaVM(JavaVM* vm);
}  // namespace corvel
