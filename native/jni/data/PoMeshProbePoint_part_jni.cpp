// The probe point's four callback setters: each attaches a callback bridge to
// one event of the probe, or detaches the event (bridge handle 0).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMeshProbePoint.h>

#include "callbacks/PoProbeCallback.h"
#include "common/CallbackRegistration.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_setMotionCallbackImpl(JNIEnv* env, jobject,
                                                                                         jlong handle,
                                                                                         jobject callback,
                                                                                         jobject userData,
                                                                                         jlong bridge) {
  tavrel::registerBridge<PoProbeCallback>(env, handle, &PoMeshProbePoint::setMotionCallback, callback, userData,
                                          bridge);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_setChangeCellCallbackImpl(JNIEnv* env, jobject,
                                                                                             jlong handle,
                                                                                             jobject callback,
                                                                                             jobject userData,
                                                                                             jlong bridge) {
  tavrel::registerBridge<PoProbeCallback>(env, handle, &PoMeshProbePoint::setChangeCellCallback, callback, userData,
                                          bridge);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_setEnterMeshCallbackImpl(JNIEnv* env, jobject,
                                                                                            jlong handle,
                                                                                            jobject callback,
                                                                                            jobject userData,
                                                                                            jlong bridge) {
  tavrel::registerBridge<PoProbeCallback>(env, handle, &PoMeshProbePoint::setEnterMeshCallback, callback, userData,
                                          bridge);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PoMeshProbePoint_setLeaveMeshCallbackImpl(JNIEnv* env, jobject,
                                                                                            jlong handle,
                                                                                            jobject callback,
                                                                                            jobject userData,
                                                                                            jlong bridge) {
  tavrel::registerBridge<PoProbeCallback>(env, handle, &PoMeshProbePoint::setLeaveMeshCallback, callback, userData,
                                          bridge);
}

}  // extern "C"
