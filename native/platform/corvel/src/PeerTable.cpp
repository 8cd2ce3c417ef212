// The native side of the peer table of com.kestrum.corvel.misc.ManagedObjects:
// a weak global reference to each registered Java peer, by native address,
// kept in step with the Java table (which calls the two natives below inside
// its atomic update of the entry). getManagedObject reads it, so that handing
// a registered peer to Java (an action, a Java node, a mesh) needs no call into
// Java.
//
// Readers make their local reference under the lock, and a replaced or
// forgotten weak reference is deleted only once it has left the table, so no
// reader ever uses a deleted reference.

#include <jni.h>

#include <mutex>
#include <unordered_map>

#include "ManagedObjectsClass.h"

namespace {
std::mutex peersMutex;
std::unordered_map<jlong, jweak>& peers() {
  static auto* table = new std::unordered_map<jlong, jweak>();  // never destroyed: used until the process ends
  return *table;
}
}  // namespace

namespace corvel {
jobject registeredPeer(JNIEnv* env, jlong address) {
  std::lock_guard<std::mutex> lock(peersMutex);
  auto found = peers().find(address);
  return found == peers().end() ? nullptr : env->NewLocalRef(found->second);
}
}  // namespace corvel

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_rememberPeerNative(JNIEnv* env, jclass,
                                                                                     jlong address, jobject peer) {
  jweak added = env->NewWeakGlobalRef(peer);
  jweak replaced = nullptr;
  {
    std::lock_guard<std::mutex> lock(peersMutex);
    jweak& slot = peers()[address];
    replaced = slot;
    slot = added;
  }
  if (replaced != nullptr) env->DeleteWeakGlobalRef(replaced);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_forgetPeerNative(JNIEnv* env, jclass,
                                                                                   jlong address) {
  jweak removed = nullptr;
  {
    std::lock_guard<std::mutex> lock(peersMutex);
    auto found = peers().find(address);
    if (found == peers().end()) return;
    removed = found->second;
    peers().erase(found);
  }
  env->DeleteWeakGlobalRef(removed);
}

}  // extern "C"
