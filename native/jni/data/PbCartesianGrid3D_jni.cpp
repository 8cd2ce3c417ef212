// com.kestrum.tavrel.data.PbCartesianGrid3D: constructor functions of the curvilinear 3D grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbCartesianGrid3D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbCartesianGrid3D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbCartesianGrid3D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbCartesianGrid3D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbCartesianGrid3D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbCartesianGrid3D_ctorImpl2(JNIEnv* env, jclass, jint numX,
    jint numY, jint numZ, jfloatArray x, jfloatArray y, jfloatArray z, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbCartesianGrid3D>(env, numX, numY, numZ, x, y, z, isDataDuplicated);
}

}  // extern "C"
