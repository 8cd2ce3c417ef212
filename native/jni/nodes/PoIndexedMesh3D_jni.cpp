// com.kestrum.tavrel.nodes.PoIndexedMesh3D: the mesh node of an unstructured 3D mesh of tetrahedra, pyramids, wedges
// and hexahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIndexedMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIndexedMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIndexedMesh3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoIndexedMesh3D>(handle)->mesh, numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

}  // extern "C"
