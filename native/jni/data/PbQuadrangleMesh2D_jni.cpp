// com.kestrum.tavrel.data.PbQuadrangleMesh2D: constructor functions and geometry of the quadrangle mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbQuadrangleMesh2D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbQuadrangleMesh2D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbQuadrangleMesh2D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbQuadrangleMesh2D>(env, numNodes, x, y, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_ctorImpl3(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbQuadrangleMesh2D>(env, numNodes, x, y, z, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numCells, jintArray cellIndex) {
  PbQuadrangleMesh2D* mesh = tavrel::fromHandle<PbQuadrangleMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, numCells, cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex) {
  PbQuadrangleMesh2D* mesh = tavrel::fromHandle<PbQuadrangleMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellIndex);
}

}  // extern "C"
