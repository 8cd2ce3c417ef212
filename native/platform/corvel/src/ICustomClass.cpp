#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>

ICustomClass::ICustomClass() : javaPeer(nullptr), peerIsWeak(false) {}

// A weak reference is this object's own; a global one belongs to the owner,
// which deletes it in its destructor before this runs.
ICustomClass::~ICustomClass() {
  if (javaPeer == nullptr || !peerIsWeak) return;
  if (JNIEnv* env = JNIEnvHelper::getEnv()) env->DeleteWeakGlobalRef(static_cast<jweak>(javaPeer));
}

void ICustomClass::initJavaObject(JNIEnv* env, jobject peer, bool weak) {
  if (javaPeer != nullptr && peerIsWeak) env->DeleteWeakGlobalRef(static_cast<jweak>(javaPeer));
  javaPeer = nullptr;
  if (peer != nullptr) javaPeer = weak ? env->NewWeakGlobalRef(peer) : env->NewGlobalRef(peer);
  peerIsWeak = weak;
}
