// Registration of a callback bridge with a toolkit object.
//
// The toolkit object receives the bridge class's RealCallback as its function
// and the bridge's address as its user data. The user's data object stays on
// the Java side, in the field "userData" of the Java callback object.
#pragma once

#include <jni.h>

#include "common/Handles.h"

namespace tavrel {

// Stores the user data object (null included) in the callback object's field
// "userData". When its class has no such field, nothing is stored and
// NoSuchFieldError is left pending.
inline void storeUserData(JNIEnv* env, jobject callbackObject, jobject userData) {
  jclass cls = env->GetObjectClass(callbackObject);
  jfieldID field = env->GetFieldID(cls, "userData", "Ljava/lang/Object;");
  if (field != nullptr) env->SetObjectField(callbackObject, field, userData);
  env->DeleteLocalRef(cls);
}

// Bridge handle 0: the toolkit setter gets a null function and null user data,
// and the Java objects are not touched (the event is detached). Otherwise the
// user data is stored first, then the setter installs Bridge::RealCallback
// with the bridge's address, whether or not the user data could be stored.
template <class Bridge, class Node, class Function>
inline void registerBridge(JNIEnv* env, jlong node, void (Node::*setter)(Function, void*), jobject callbackObject,
                           jobject userData, jlong bridge) {
  Node* target = fromHandle<Node>(node);
  if (bridge == 0) {
    (target->*setter)(nullptr, nullptr);
    return;
  }
  storeUserData(env, callbackObject, userData);
  (target->*setter)(&Bridge::RealCallback, fromHandle<void>(bridge));
}

}  // namespace tavrel
