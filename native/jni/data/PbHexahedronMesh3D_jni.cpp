// com.kestrum.tavrel.data.PbHexahedronMesh3D: constructor functions and geometry of the hexahedron mesh.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbHexahedronMesh3D.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbHexahedronMesh3D_ctorImpl(JNIEnv* env, jclass,
    jboolean isDataDuplicated) {
  return tavrel::construct<PbHexahedronMesh3D>(tavrel::toFlag(isDataDuplicated));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbHexahedronMesh3D_ctorImpl1(JNIEnv* env, jclass, jlong other) {
  return tavrel::constructCopy<PbHexahedronMesh3D>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbHexahedronMesh3D_ctorImpl2(JNIEnv* env, jclass, jint numNodes,
    jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex, jboolean isDataDuplicated) {
  return tavrel::constructWith<PbHexahedronMesh3D>(env, numNodes, x, y, z, numCells, cellIndex, isDataDuplicated);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbHexahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellIndex) {
  PbHexahedronMesh3D* mesh = tavrel::fromHandle<PbHexahedronMesh3D>(handle);
  tavrel::withInputs(env, [mesh](auto... a) { mesh->setGeometry(a...); }, numNodes, x, y, z, numCells, cellIndex);
}

}  // extern "C"
