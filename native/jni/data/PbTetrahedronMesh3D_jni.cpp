// com.kestrum.tavrel.data.PbTetrahedronMesh3D: constructor functions and geometry of the tetrahedron mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbTetrahedronMesh3D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronMesh3D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbTetrahedronMesh3D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronMesh3D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbTetrahedronMesh3D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronMesh3D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbTetrahedronMesh3D>(env, numNodes, x, y, z, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex) {
  PbTetrahedronMesh3D* mesh = tavrel::fromHandle<PbTetrahedronMesh3D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellIndex);
}

}  // extern "C"
