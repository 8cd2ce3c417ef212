#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>

#include <cstdint>

#include "ManagedObjectsClass.h"

// The Java side keeps the table of Java objects by native address and of Java
// classes by toolkit type name (com.kestrum.corvel.misc.ManagedObjects).

jobject ObjectHelper::getManagedObject(JNIEnv* env, const char* className, long address) {
  if (address == 0) return nullptr;
  corvel::ManagedObjectsClass& mo = corvel::managedObjectsClass(env);
  jstring name = env->NewStringUTF(className);
  jobject result = env->CallStaticObjectMethod(mo.cls, mo.getManagedObject, name, static_cast<jlong>(address));
  if (env->ExceptionCheck()) result = nullptr;  // the exception stays pending for the caller
  env->DeleteLocalRef(name);
  return result;
}

void* ObjectHelper::getManagedObject(const char* typeName) {
  JNIEnv* env = JNIEnvHelper::getEnv();
  // No Java call is allowed while an exception is pending: no instance then.
  if (env == nullptr || env->ExceptionCheck()) return nullptr;
  corvel::ManagedObjectsClass& mo = corvel::managedObjectsClass(env);
  jstring name = env->NewStringUTF(typeName);
  jlong address = env->CallStaticLongMethod(mo.cls, mo.createInstance, name);
  env->DeleteLocalRef(name);
  if (env->ExceptionCheck()) return nullptr;
  return reinterpret_cast<void*>(static_cast<intptr_t>(address));
}

int ObjectHelper::getEnumValue(JNIEnv* env, jobject enumObject) {
  jclass cls = env->GetObjectClass(enumObject);
  jmethodID getValue = env->GetMethodID(cls, "getValue", "()I");
  env->DeleteLocalRef(cls);
  if (getValue == nullptr) return 0;
  return env->CallIntMethod(enumObject, getValue);
}
