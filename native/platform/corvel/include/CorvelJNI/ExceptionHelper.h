// Raising Java exceptions from native code.
//
// throwIllegalArgException clears the pending exception given as cause and
// raises a java.lang.IllegalArgumentException with the message and that cause
// (a null cause gives an exception without one).
// throwIllegalAccessException raises a java.lang.IllegalAccessException on
// the calling thread.
#pragma once

#include <jni.h>

class ExceptionHelper {
 public:
  static void throwIllegalArgException(JNIEnv* env, const char* message, jthrowable cause);
  static void throwIllegalAccessException(const char* message);
};
