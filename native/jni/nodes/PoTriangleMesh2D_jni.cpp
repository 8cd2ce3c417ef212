// com.kestrum.tavrel.nodes.PoTriangleMesh2D: the mesh node of a 2D mesh of triangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoTriangleMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoTriangleMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoTriangleMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoTriangleMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoTriangleMesh2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoTriangleMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoTriangleMesh2D>(handle)->mesh, numNodes, x, y);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoTriangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numTriangles, jintArray triangleNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoTriangleMesh2D>(handle)->mesh, numNodes, x, y, numTriangles,
      triangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoTriangleMesh2D_setGeometryImpl2(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numTriangles,
    jintArray triangleNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoTriangleMesh2D>(handle)->mesh, numNodes, x, y, z, numTriangles,
      triangleNodes);
}

}  // extern "C"
