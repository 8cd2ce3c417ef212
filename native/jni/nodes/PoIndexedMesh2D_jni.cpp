// com.kestrum.tavrel.nodes.PoIndexedMesh2D: the mesh node of an unstructured 2D mesh of triangles and quadrangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIndexedMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIndexedMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIndexedMesh2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoIndexedMesh2D>(handle)->mesh, numNodes, x, y, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIndexedMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoIndexedMesh2D>(handle)->mesh, numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

}  // extern "C"
