// What the JNI entry points of the Java-extensible classes share: telling a
// Java-extensible object from a toolkit object of another class, and the
// calls that reach the toolkit's own behaviour from a Java override.
#pragma once

#include <jni.h>

#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/StringHelper.h>

#include "common/Handles.h"

namespace tavrel {

// True when the node is one of this library's Java-extensible objects (it has
// an ICustomClass base: the cross-cast succeeds).
template <class Node>
inline bool isJavaExtensible(Node* node) {
  return node != nullptr && dynamic_cast<ICustomClass*>(node) != nullptr;
}

// Base-or-virtual call: for a Java-extensible node, baseCall runs the
// toolkit's own implementation non-virtually (it never comes back into Java);
// for any other node, virtualCall runs the node's virtual operation.
template <class Node, class BaseCall, class VirtualCall>
inline void callBaseOrVirtual(jlong handle, BaseCall baseCall, VirtualCall virtualCall) {
  Node* node = fromHandle<Node>(handle);
  if (isJavaExtensible(node))
    baseCall(node);
  else
    virtualCall(node);
}

// Raises java.lang.IllegalAccessException with the message.
inline void throwIllegalAccess(JNIEnv* env, const char* message) {
  jclass cls = env->FindClass("java/lang/IllegalAccessException");
  env->ThrowNew(cls, message);
  env->DeleteLocalRef(cls);
}

// Pure-virtual guard: a Java-extensible node has no toolkit implementation to
// reach, so the call is refused with an IllegalAccessException carrying the
// message (and the result is the zero value); any other node runs
// virtualCall.
template <class Node, class Result, class VirtualCall>
inline Result refuseOrVirtual(JNIEnv* env, jlong handle, const char* message, VirtualCall virtualCall) {
  Node* node = fromHandle<Node>(handle);
  if (isJavaExtensible(node)) {
    throwIllegalAccess(env, message);
    return Result();
  }
  return virtualCall(node);
}

// initCustomClass of the Java classes: the node's type (created, or found by
// the UTF-8 name), then its Java peer, held through a weak global reference.
template <class Custom, class Handled>
inline void initCustomClass(JNIEnv* env, jlong handle, jobject peer, jboolean create, jstring typeName) {
  Custom* node = static_cast<Custom*>(fromHandle<Handled>(handle));
  {
    StringHelper name(env, typeName);
    node->initType(toBool(create), name.toUTFString());
  }
  static_cast<ICustomClass*>(node)->initJavaObject(env, peer, true);
}

}  // namespace tavrel
