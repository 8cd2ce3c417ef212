// The native methods that the thirteen element classes of
// com.kestrum.tavrel.elements share, told on the toolkit element class Base
// and its Java-extensible class Custom (custom/CustomElement.h). An element's
// native handle is its address as Base, the primary base of Custom.
//
// The toolkit calls here may reach Java: the state makes an element on first
// use (a Java element class's object, whose init then runs) and pushes one at a
// deeper depth (its push runs). An override that throws leaves its exception
// pending, so after such a call a method checks for one before any further JNI
// call (javaFailed) and, when there is one, returns at once with 0 or null,
// writing no output: only the releases of what it converted before the call
// follow, which JNI allows with an exception pending. A getter whose only JNI
// step is the toolkit call returns the toolkit's result as it is: Java throws
// the pending exception and never sees the result.
#pragma once

#include <jni.h>

#include <Corvel/SoState.h>
#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <CorvelJNI/StringHelper.h>

#include "common/Handles.h"

#include <Corvel/SbBox.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoLabelHintsElement.h>
#include <Tavrel/PoProfileElement.h>

#include <cstring>

namespace tavrel {
namespace elements {

// Whether a Java exception is pending after a toolkit call that may have run a
// Java element's override.
inline bool javaFailed(JNIEnv* env) { return env->ExceptionCheck() == JNI_TRUE; }

template <class Custom, class Base>
inline jlong construct() {
  return toHandle(static_cast<Base*>(new Custom));
}

// Binds a new Java-extensible element: its type, then its Java peer (a global
// reference, which the element deletes), then its stack index (-1 asks the
// element to choose) and its key (the bad key asks for a new one). The result
// is {stack index, key} as a new int[2].
template <class Custom, class Base>
inline jintArray initCustomClass(JNIEnv* env, jlong handle, jobject peer, jboolean create, jstring typeName,
                                 jint stackIndex, jshort key) {
  Custom* element = static_cast<Custom*>(fromHandle<Base>(handle));
  {
    StringHelper name(env, typeName);
    element->initType(toBool(create), name.toUTFString());
  }
  static_cast<ICustomClass*>(element)->initJavaObject(env, peer, false);
  int result[2];
  result[0] = element->initClassStackIndex(stackIndex);
  result[1] = element->initElementKey(static_cast<unsigned short>(key));
  // The name's conversion and the peer's reference may have failed in Java.
  if (javaFailed(env)) return nullptr;
  return ArrayHelper::fromNativeArray(env, result, 2);
}

// The toolkit's protected init, reached from a Java element's override: only
// for a Java-extensible element; a handle of 0 or a plain toolkit element is
// refused with an IllegalAccessException and nothing is called.
template <class Base>
inline void initProtected(JNIEnv* env, jlong handle, jlong state) {
  Base* element = fromHandle<Base>(handle);
  auto* access = element != nullptr ? dynamic_cast<ISoElementProtectedMethodAccess*>(element) : nullptr;
  if (access == nullptr) {
    // The class reference is a local one of this native frame: it goes when
    // the frame returns to Java, which it does at once.
    env->ThrowNew(env->FindClass("java/lang/IllegalAccessException"), "Call of protected methods not allowed.");
    return;
  }
  access->initDefaultImpl(fromHandle<SoState>(state));
}

// PoLabelHintsElement::set with the text as UTF-8, released after the call.
inline void setLabelHints(JNIEnv* env, SoState* state, SoNode* node, jint labelPath, jint justification,
                          jstring text, jboolean first, jboolean second) {
  StringHelper utf(env, text);
  PoLabelHintsElement::set(state, node, toEnum<PoLabelHints::LabelPath>(labelPath),
                           toEnum<PoLabelHints::Justification>(justification), utf.toUTFString(), toFlag(first),
                           toFlag(second));
}

// The profile's bounding box: its four floats, in memory order, into elements
// 0 to 3 of the output array (opened before the call, copied back at the end;
// left as it was when a Java exception is pending).
inline void profileBBox(JNIEnv* env, SoState* state, jfloatArray box) {
  ArrayHelper helper(env);
  float* out = helper.toNativeArray(box, ArrayHelper::ReadWrite);
  SbBox2f bbox = PoProfileElement::getBBox(state);
  if (javaFailed(env)) return;
  static_assert(sizeof bbox == 4 * sizeof(float), "a 2D box is four floats");
  std::memcpy(out, &bbox, sizeof bbox);
}

// The profile's points at the value; their count into element 0 of the output
// array (opened after the call, and not at all when a Java exception is
// pending: the result is then null).
inline const SbVec2f* profile(JNIEnv* env, SoState* state, jfloat value, jintArray count) {
  int numPoints = 0;
  const SbVec2f* points = PoProfileElement::getProfile(state, value, numPoints);
  if (javaFailed(env)) return nullptr;
  ArrayHelper helper(env);
  int* out = helper.toNativeArray(count, ArrayHelper::ReadWrite);
  out[0] = numPoints;
  return points;
}

// As profile, as a direct buffer over the points (null without points, and
// when a Java exception is pending).
inline jobject directProfile(JNIEnv* env, SoState* state, jfloat value, jintArray count) {
  int numPoints = 0;
  const SbVec2f* points = PoProfileElement::getProfile(state, value, numPoints);
  if (javaFailed(env)) return nullptr;
  ArrayHelper helper(env);
  int* out = helper.toNativeArray(count, ArrayHelper::ReadWrite);
  out[0] = numPoints;
  if (points == nullptr) return nullptr;
  return env->NewDirectByteBuffer(const_cast<SbVec2f*>(points), static_cast<jlong>(numPoints) * sizeof(SbVec2f));
}

}  // namespace elements
}  // namespace tavrel
