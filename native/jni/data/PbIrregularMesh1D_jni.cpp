// com.kestrum.tavrel.data.PbIrregularMesh1D: constructor functions and geometry of the irregular 1D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbIrregularMesh1D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIrregularMesh1D_ctorImpl(JNIEnv* env, jclass) {
  return tavrel::construct<PbIrregularMesh1D>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIrregularMesh1D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbIrregularMesh1D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIrregularMesh1D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x) {
  return tavrel::constructWith<PbIrregularMesh1D>(env, numNodes, x);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIrregularMesh1D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x) {
  PbIrregularMesh1D* mesh = tavrel::fromHandle<PbIrregularMesh1D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x);
}

}  // extern "C"
