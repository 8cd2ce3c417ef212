// com.kestrum.tavrel.testkit.Toolkit: direct access to the toolkit stand-in.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Corvel/SoType.h>
#include <CorvelJNI/ObjectHelper.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PoTavrel.h>

#include <cstdint>

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_newPoTavrel(JNIEnv*, jclass) {
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(new PoTavrel));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_poTavrelInitCount(JNIEnv*, jclass) {
  return PoTavrel::getInitCount();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_moduleCheckCount(JNIEnv*, jclass, jint version) {
  return SoModuleCheck::getInstanceCount(version);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_moduleCheckTotal(JNIEnv*, jclass) {
  return SoModuleCheck::getInstanceCount();
}

// The name of the parent of the named type ("" when unknown).
JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_parentTypeName(JNIEnv* env, jclass, jstring name) {
  StringHelper helper(env, name);
  SoType t = SoType::fromName(helper.toUTFString());
  return StringHelper::fromNativeString(env, t.getParent().getName());
}

// The data (action-method index for nodes) of the named type, -1 when unknown.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_typeData(JNIEnv* env, jclass, jstring name) {
  StringHelper helper(env, name);
  SoType t = SoType::fromName(helper.toUTFString());
  return t.isBad() ? -1 : t.getData();
}

// The binding core's Java object for the address, as the dotted class name.
JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_testkit_Toolkit_managedObject(JNIEnv* env, jclass, jstring className,
                                                                              jlong address) {
  StringHelper name(env, className);
  return ObjectHelper::getManagedObject(env, name.toUTFString(), static_cast<long>(address));
}

}  // extern "C"
