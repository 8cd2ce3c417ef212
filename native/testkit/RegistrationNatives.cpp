// com.kestrum.tavrel.testkit.Registrations: the product's own setter of the
// probe's motion callback, called with any Java object as the callback object
// (one whose class has no field "userData", for instance), which Java cannot.

#include <dlfcn.h>
#include <jni.h>

#include <CorvelJNI/StringHelper.h>

namespace {
using Setter = void (*)(JNIEnv*, jobject, jlong, jobject, jobject, jlong);
Setter motionSetter = nullptr;
}  // namespace

extern "C" {

// Finds the setter in the product, loaded already from that path.
JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Registrations_bind(JNIEnv* env, jclass,
                                                                            jstring productPath) {
  StringHelper path(env, productPath);
  void* product = dlopen(path.toUTFString(), RTLD_NOW | RTLD_NOLOAD);
  if (product == nullptr) return JNI_FALSE;
  motionSetter = reinterpret_cast<Setter>(
      dlsym(product, "Java_com_kestrum_tavrel_data_PoMeshProbePoint_setMotionCallbackImpl"));
  dlclose(product);  // the product stays loaded: the JVM holds it
  return motionSetter != nullptr ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Registrations_setMotionCallback(JNIEnv* env, jclass,
                                                                                     jlong probe,
                                                                                     jobject callbackObject,
                                                                                     jobject userData,
                                                                                     jlong bridge) {
  motionSetter(env, nullptr, probe, callbackObject, userData, bridge);
}

}  // extern "C"
