// com.kestrum.tavrel.nodes.PoQuadrangleMesh2D: the mesh node of a 2D mesh of quadrangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoQuadrangleMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoQuadrangleMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoQuadrangleMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoQuadrangleMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoQuadrangleMesh2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoQuadrangleMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numQuadrangles, jintArray quadrangleNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoQuadrangleMesh2D>(handle)->mesh, numNodes, x, y, numQuadrangles,
      quadrangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoQuadrangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numQuadrangles,
    jintArray quadrangleNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoQuadrangleMesh2D>(handle)->mesh, numNodes, x, y, z, numQuadrangles,
      quadrangleNodes);
}

}  // extern "C"
