// Data sets added to a mesh, or to whatever holds one (a mesh node, a mesh
// field): the set name through the wide-string path, converted first, then
// the data; everything is released when the call returns.
#pragma once

#include <jni.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>

#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

namespace tavrel {

// receiver->addValuesSet(set, values, name); values ReadOnly.
template <class Receiver>
inline void addValuesSet(JNIEnv* env, Receiver* receiver, jint set, jfloatArray values, jstring name) {
  WideName n(env, name);
  ArrayHelper helper(env);
  receiver->addValuesSet(set, helper.toNativeArray(values, ArrayHelper::ReadOnly), n.value);
}

// receiver->addValuesSet(set, values, binding, name), the binding cast to the
// receiver's enumeration Binding.
template <class Binding, class Receiver>
inline void addValuesSet(JNIEnv* env, Receiver* receiver, jint set, jfloatArray values, jint binding,
                         jstring name) {
  WideName n(env, name);
  ArrayHelper helper(env);
  receiver->addValuesSet(set, helper.toNativeArray(values, ArrayHelper::ReadOnly), toEnum<Binding>(binding), n.value);
}

// receiver->addStringsSet(set, strings, name); one SbString per Java string.
template <class Receiver>
inline void addStringsSet(JNIEnv* env, Receiver* receiver, jint set, jobjectArray strings, jstring name) {
  WideName n(env, name);
  StringArrayHelper natives(env, strings);
  receiver->addStringsSet(set, natives.toSbStringArray(), n.value);
}

// receiver->addVecsSet(set, vectors, name) with a native array of Vec (SbVec3f
// or SbVec2f) made from the vector objects: null for a null or empty array or
// one whose element 0 is null.
template <class Vec, class Receiver>
inline void addVecsSet(JNIEnv* env, Receiver* receiver, jint set, jobjectArray vectors, jstring name) {
  WideName n(env, name);
  FloatLayoutedArrayTypeArrayHelper<Vec> natives(env, vectors);
  receiver->addVecsSet(set, natives.toNativeArray(), n.value);
}

}  // namespace tavrel
