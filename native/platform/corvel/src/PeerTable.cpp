// The native side of the peer table of com.kestrum.corvel.misc.ManagedObjects:
// a weak global reference to each registered Java peer, by native address,
// kept in step with the Java table (which calls the two natives below inside
// its atomic update of the entry; forgotten references are deleted in batches,
// or at once by the third). getManagedObject reads it, so that handing
// a registered peer to Java (an action, a Java node, a mesh) needs no call into
// Java.
//
// Lookups run on every forwarded call of a traversal, on any thread, so they
// take no lock (PeerTable.h): a reader makes its local reference inside the
// table's protection, and a replaced or forgotten weak reference is deleted
// only once no reader can still be using it.

#include "PeerTable.h"

#include <jni.h>

#include "ManagedObjectsClass.h"

namespace {
corvel::PeerTable<jweak>& peers() {
  static auto* table = new corvel::PeerTable<jweak>();  // never destroyed: used until the process ends
  return *table;
}

struct DeleteWeak {
  JNIEnv* env;
  void operator()(jweak ref) const { env->DeleteWeakGlobalRef(ref); }
};
}  // namespace

namespace corvel {
jobject registeredPeer(JNIEnv* env, jlong address) {
  return peers().find(address, [env](jweak ref) { return ref == nullptr ? nullptr : env->NewLocalRef(ref); });
}
}  // namespace corvel

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_rememberPeerNative(JNIEnv* env, jclass,
                                                                                     jlong address, jobject peer) {
  peers().put(address, env->NewWeakGlobalRef(peer), DeleteWeak{env});
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_forgetPeerNative(JNIEnv* env, jclass,
                                                                                   jlong address) {
  peers().remove(address, DeleteWeak{env});
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_collectForgottenNative(JNIEnv* env, jclass) {
  peers().collect(DeleteWeak{env});
}

}  // extern "C"
