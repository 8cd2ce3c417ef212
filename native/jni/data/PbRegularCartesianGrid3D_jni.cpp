// com.kestrum.tavrel.data.PbRegularCartesianGrid3D: constructor functions and geometry of the regular 3D grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbRegularCartesianGrid3D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid3D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbRegularCartesianGrid3D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid3D_ctorImpl1(JNIEnv* env, jclass,
    jlong other) {
  return tavrel::constructCopy<PbRegularCartesianGrid3D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid3D_ctorImpl2(JNIEnv* env, jclass, jint numX,
    jint numY, jint numZ, jfloat xmin, jfloat ymin, jfloat zmin, jfloat xmax, jfloat ymax, jfloat zmax,
    jboolean isDataDuplicated) {
  return tavrel::constructWith<PbRegularCartesianGrid3D>(env, numX, numY, numZ, xmin, ymin, zmin, xmax, ymax, zmax,
      isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloat xmin, jfloat ymin, jfloat zmin, jfloat xmax, jfloat ymax,
    jfloat zmax) {
  PbRegularCartesianGrid3D* mesh = tavrel::fromHandle<PbRegularCartesianGrid3D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numX, numY, numZ, xmin, ymin, zmin, xmax,
      ymax, zmax);
}

}  // extern "C"
