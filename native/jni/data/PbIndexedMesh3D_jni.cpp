// com.kestrum.tavrel.data.PbIndexedMesh3D: constructor functions, geometry and node arrays of the indexed 3D mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbIndexedMesh3D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh3D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbIndexedMesh3D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh3D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbIndexedMesh3D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh3D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes, jintArray cellIndex,
    jboolean isDataDuplicated) {
  return tavrel::constructWith<PbIndexedMesh3D>(env, numNodes, x, y, z, numCells, cellTypes, cellIndex,
      isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh3D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
    jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  PbIndexedMesh3D* mesh = tavrel::fromHandle<PbIndexedMesh3D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh3D_getNodesImpl(JNIEnv* env, jobject, jlong handle,
    jobjectArray xOut, jobjectArray yOut, jobjectArray zOut) {
  int count = 0;
  const float *x = nullptr, *y = nullptr, *z = nullptr;
  tavrel::fromHandle<PbIndexedMesh3D>(handle)->getNodes(count, x, y, z);
  tavrel::storeFloatBuffers(env, {xOut, yOut, zOut}, {x, y, z}, {count, count, count});
}

}  // extern "C"
