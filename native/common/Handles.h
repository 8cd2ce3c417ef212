// Native handles and the scalar conventions shared by every native method.
//
// A handle is a jlong holding the address of a native object, 0 for none.
// Objects made by constructor functions are handed to their Java peer as the
// address of the class the Java class wraps.
#pragma once

#include <jni.h>

#include <cstdint>
#include <utility>

namespace tavrel {

template <class T>
inline T* fromHandle(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

inline jlong toHandle(const void* address) {
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(address));
}

// A jboolean argument as the toolkit's int flag: its byte value, 0 or 1.
inline int toFlag(jboolean value) { return static_cast<int>(value); }

// A jboolean argument as a bool: true when non-zero.
inline bool toBool(jboolean value) { return value != JNI_FALSE; }

// A toolkit int flag (or bool) as a jboolean result.
inline jboolean toJBoolean(int flag) { return flag != 0 ? JNI_TRUE : JNI_FALSE; }

// An enumeration argument: the jint cast to the toolkit enumeration, unchecked.
template <class E>
inline E toEnum(jint value) {
  return static_cast<E>(value);
}

// Constructor function: a new T made from the arguments; returns its handle.
// When T's constructor throws, the memory is freed and the exception goes on;
// conversion helpers of the caller are destroyed as the stack unwinds.
template <class T, class... Args>
inline jlong construct(Args&&... args) {
  return toHandle(new T(std::forward<Args>(args)...));
}

// Constructor function running T's copy constructor on another T's handle.
template <class T>
inline jlong constructCopy(jlong other) {
  return toHandle(new T(*fromHandle<T>(other)));
}

// Resource-handle deletion: deletes the object (nothing for handle 0).
template <class T>
inline void deleteHandle(jlong handle) {
  delete fromHandle<T>(handle);
}

}  // namespace tavrel
