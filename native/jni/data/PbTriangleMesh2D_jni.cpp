// com.kestrum.tavrel.data.PbTriangleMesh2D: constructor functions and geometry of the triangle mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbTriangleMesh2D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbTriangleMesh2D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbTriangleMesh2D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbTriangleMesh2D>(env, numNodes, x, y, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_ctorImpl3(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbTriangleMesh2D>(env, numNodes, x, y, z, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
    jint numNodes, jfloatArray x, jfloatArray y, jint numCells, jintArray cellIndex) {
  PbTriangleMesh2D* mesh = tavrel::fromHandle<PbTriangleMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, numCells, cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y) {
  PbTriangleMesh2D* mesh = tavrel::fromHandle<PbTriangleMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbTriangleMesh2D_setGeometryImpl2(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex) {
  PbTriangleMesh2D* mesh = tavrel::fromHandle<PbTriangleMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellIndex);
}

}  // extern "C"
