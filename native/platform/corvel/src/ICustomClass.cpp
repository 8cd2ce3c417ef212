#include <CorvelJNI/ICustomClass.h>

ICustomClass::ICustomClass() : javaPeer(nullptr), peerIsWeak(false) {}

void ICustomClass::initJavaObject(JNIEnv* env, jobject peer, bool weak) {
  if (javaPeer != nullptr && peerIsWeak) env->DeleteWeakGlobalRef(static_cast<jweak>(javaPeer));
  javaPeer = nullptr;
  if (peer != nullptr) javaPeer = weak ? env->NewWeakGlobalRef(peer) : env->NewGlobalRef(peer);
  peerIsWeak = weak;
}
