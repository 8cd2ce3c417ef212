// com.kestrum.tavrel.data.PbRegularMesh1D: constructor functions and geometry of the regular 1D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbRegularMesh1D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularMesh1D_ctorImpl(JNIEnv* env, jclass) {
  return tavrel::construct<PbRegularMesh1D>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularMesh1D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbRegularMesh1D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbRegularMesh1D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloat xmin, jfloat xmax) {
  return tavrel::constructWith<PbRegularMesh1D>(env, numNodes, xmin, xmax);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbRegularMesh1D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
    jint numNodes, jfloat xmin, jfloat xmax) {
  PbRegularMesh1D* mesh = tavrel::fromHandle<PbRegularMesh1D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, xmin, xmax);
}

}  // extern "C"
