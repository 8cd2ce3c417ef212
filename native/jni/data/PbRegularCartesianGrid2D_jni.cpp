// com.kestrum.tavrel.data.PbRegularCartesianGrid2D: constructor functions and geometry of the regular 2D grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbRegularCartesianGrid2D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbRegularCartesianGrid2D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_ctorImpl1(JNIEnv* env, jclass,
    jlong other) {
  return tavrel::constructCopy<PbRegularCartesianGrid2D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_ctorImpl2(JNIEnv* env, jclass, jint numX,
    jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbRegularCartesianGrid2D>(env, numX, numY, xmin, ymin, xmax, ymax, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_ctorImpl3(JNIEnv* env, jclass, jint numX,
    jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax, jfloatArray z, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbRegularCartesianGrid2D>(env, numX, numY, xmin, ymin, xmax, ymax, z, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_ctorImpl4(JNIEnv* env, jclass, jint numX,
    jint numY, jlong grid) {
  return tavrel::construct<PbRegularCartesianGrid2D>(numX, numY, *tavrel::fromHandle<PbRegularCartesianGrid2D>(grid));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax) {
  PbRegularCartesianGrid2D* mesh = tavrel::fromHandle<PbRegularCartesianGrid2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numX, numY, xmin, ymin, xmax, ymax);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbRegularCartesianGrid2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax, jfloatArray z) {
  PbRegularCartesianGrid2D* mesh = tavrel::fromHandle<PbRegularCartesianGrid2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numX, numY, xmin, ymin, xmax, ymax, z);
}

}  // extern "C"
