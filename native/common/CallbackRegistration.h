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
// "userData". Returns false, with NoSuchFieldError pending, when its class has
// no such field.
inline bool storeUserData(JNIEnv* env, jobject callbackObject, jobject userData) {
  jclass cls = env->GetObjectClass(callbackObject);
  jfieldID field = env->GetFieldID(cls, "userData", "Ljava/lang/Object;");
  env->DeleteLocalRef(cls);
  if (field == nullptr) return false;
  env->SetObjectField(callbackObject, field, userData);
  return true;
}

// Bridge handle 0: the toolkit setter gets a null function and null user data,
// and the Java objects are not touched (the event is detached). Otherwise the
// user data is stored first, then the setter installs Bridge::RealCallback
// with the bridge's address.
template <class Bridge, class Node, class Function>
inline void registerBridge(JNIEnv* env, jlong node, void (Node::*setter)(Function, void*), jobject callbackObject,
                           jobject userData, jlong bridge) {
  Node* target = fromHandle<Node>(node);
  if (bridge == 0) {
    (target->*setter)(nullptr, nullptr);
    return;
  }
  if (!storeUserData(env, callbackObject, userData)) return;
  (target->*setter)(&Bridge::RealCallback, fromHandle<void>(bridge));
}

}  // namespace tavrel
