// The Java peer of a native object that calls Java back (the callback bridges
// and the Java-extensible classes).
//
// The binding core promises one thing of an ICustomClass part's layout: its
// first member is the JNI reference to the Java peer. The reference is read
// from there, not through a member name of the binding core's class.
#pragma once

#include <jni.h>

#include <CorvelJNI/ICustomClass.h>

#include <cstring>

namespace tavrel {

inline jobject javaPeerOf(const ICustomClass& object) {
  jobject peer;
  std::memcpy(&peer, static_cast<const void*>(&object), sizeof peer);
  return peer;
}

}  // namespace tavrel
