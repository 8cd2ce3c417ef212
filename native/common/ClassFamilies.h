// Class-level method families: type-name getters, catalog getters and
// enumeration getters.
#pragma once

#include <jni.h>

#include <CorvelJNI/StringHelper.h>
#include <Corvel/SoType.h>

#include "common/Handles.h"

namespace tavrel {

// Type-name getter of a class that offers a static getClassTypeId().
template <class T>
inline jstring classTypeName(JNIEnv* env) {
  return StringHelper::fromNativeString(env, T::getClassTypeId().getName());
}

// Type-name getter of a class that offers a static classTypeId data member.
template <class T>
inline jstring classTypeNameOfMember(JNIEnv* env) {
  return StringHelper::fromNativeString(env, T::classTypeId.getName());
}

// Catalog getter: the address of the class's nodekit catalog.
template <class T>
inline jlong classCatalog() {
  return toHandle(T::getClassNodekitCatalog());
}

// Enumeration getter: the enumerator's value, a constant of the build.
template <class E>
constexpr jint enumValue(E enumerator) {
  return static_cast<jint>(enumerator);
}

}  // namespace tavrel
