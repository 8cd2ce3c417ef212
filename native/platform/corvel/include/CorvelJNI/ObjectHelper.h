// Java objects that stand for native objects, and Java enumeration values.
//
// getManagedObject(env, className, address) returns the Java object for the
// native object at address as an instance of the dotted class name: the Java
// peer registered for that address when there is one (a Java-extended node,
// for instance), otherwise a new Java wrapper of that class that does not own
// the native object. Address 0 gives null. The result is a local reference.
// When the Java side raises an exception (no wrapper registered for the class,
// for instance) the result is null and the exception stays pending.
//
// getManagedObject(typeName) makes a new instance of the Java class registered
// for a toolkit type name and returns the address of its native object, or
// null when no Java class is registered under that name, when making the
// instance raised a Java exception (left pending) or when an exception was
// already pending. It may be called on any thread: an unknown one is attached.
//
// getEnumValue(env, object) returns the value that a Java enumeration constant
// carries (its getValue() method).
#pragma once

#include <jni.h>

class ObjectHelper {
 public:
  static jobject getManagedObject(JNIEnv* env, const char* className, long address);
  static void* getManagedObject(const char* typeName);
  static int getEnumValue(JNIEnv* env, jobject enumObject);
};
