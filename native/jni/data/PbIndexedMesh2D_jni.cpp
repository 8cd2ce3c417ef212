// com.kestrum.tavrel.data.PbIndexedMesh2D: constructor functions, geometry, node arrays and element orientation of
// the indexed 2D mesh; PbIndexedMesh2D$ElemOrientations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbIndexedMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbIndexedMesh2D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbIndexedMesh2D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jint numCells, jintArray cellTypes, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbIndexedMesh2D>(env, numNodes, x, y, numCells, cellTypes, cellIndex, isDataDuplicated);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_ctorImpl3(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes, jintArray cellIndex,
    jboolean isDataDuplicated) {
  return tavrel::constructWith<PbIndexedMesh2D>(env, numNodes, x, y, z, numCells, cellTypes, cellIndex,
      isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
    jint numNodes, jfloatArray x, jfloatArray y, jint numCells, jintArray cellTypes, jintArray cellIndex) {
  PbIndexedMesh2D* mesh = tavrel::fromHandle<PbIndexedMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_setGeometryImpl1(JNIEnv* env, jobject, jlong handle,
    jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  PbIndexedMesh2D* mesh = tavrel::fromHandle<PbIndexedMesh2D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_getNodesImpl(JNIEnv* env, jobject, jlong handle,
    jobjectArray xOut, jobjectArray yOut, jobjectArray zOut) {
  int count = 0;
  const float *x = nullptr, *y = nullptr, *z = nullptr;
  tavrel::fromHandle<PbIndexedMesh2D>(handle)->getNodes(count, x, y, z);
  tavrel::storeFloatBuffers(env, {xOut, yOut, zOut}, {x, y, z}, {count, count, count});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_get2DNodesImpl(JNIEnv* env, jobject, jlong handle,
    jobjectArray xOut, jobjectArray yOut) {
  int count = 0;
  const float *x = nullptr, *y = nullptr;
  tavrel::fromHandle<PbIndexedMesh2D>(handle)->getNodes(count, x, y);
  tavrel::storeFloatBuffers(env, {xOut, yOut}, {x, y}, {count, count});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_setElemOrientationImpl(JNIEnv* env, jobject,
    jlong handle, jint orientation) {
  tavrel::fromHandle<PbIndexedMesh2D>(handle)->setElemOrientation(
      tavrel::toEnum<PbIndexedMesh2D::ElemOrientation>(orientation));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_00024ElemOrientations_getORIENTATIONASISNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PbIndexedMesh2D::ORIENTATION_AS_IS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_00024ElemOrientations_getORIENTATIONZPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PbIndexedMesh2D::ORIENTATION_Z_POS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbIndexedMesh2D_00024ElemOrientations_getORIENTATIONZNEGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PbIndexedMesh2D::ORIENTATION_Z_NEG);
}

}  // extern "C"
