#pragma once

#include <jni.h>

namespace corvel {
// The Java class com.kestrum.corvel.misc.ManagedObjects and the static
// methods that native code calls, resolved once (global class reference).
struct ManagedObjectsClass {
  jclass cls = nullptr;
  jmethodID getManagedObject = nullptr;  // (Ljava/lang/Class;J)Ljava/lang/Object;
  jmethodID classNamed = nullptr;        // (Ljava/lang/String;)Ljava/lang/Class;
  jmethodID createInstance = nullptr;    // (Ljava/lang/String;)J
};
ManagedObjectsClass& managedObjectsClass(JNIEnv* env);
// A new local reference to the Java peer registered for the address; null when
// there is none or it has been collected (PeerTable.cpp).
jobject registeredPeer(JNIEnv* env, jlong address);
void rememberJavaVM(JavaVM* vm);
// Whether the text at the address can never change (a literal in a read-only
// segment of the program or of a shared object, which this pins so that it is
// never unloaded): getManagedObject then matches that class name by address.
bool isPinnedLiteral(const char* text);
}  // namespace corvel
