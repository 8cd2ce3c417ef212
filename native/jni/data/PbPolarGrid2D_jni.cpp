// com.kestrum.tavrel.data.PbPolarGrid2D: constructor functions of the polar grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbPolarGrid2D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPolarGrid2D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbPolarGrid2D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPolarGrid2D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbPolarGrid2D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPolarGrid2D_ctorImpl2(JNIEnv* env, jclass, jint numX, jint numY,
    jfloatArray x, jfloatArray y, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbPolarGrid2D>(env, numX, numY, x, y, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPolarGrid2D_ctorImpl3(JNIEnv* env, jclass, jint numX, jint numY,
    jfloatArray x, jfloatArray y, jfloatArray z, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbPolarGrid2D>(env, numX, numY, x, y, z, isDataDuplicated);
}

}  // extern "C"
