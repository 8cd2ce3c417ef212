// com.kestrum.tavrel.nodes.PoTetrahedronMesh3D: the mesh node of a 3D mesh of tetrahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoTetrahedronMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoTetrahedronMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoTetrahedronMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoTetrahedronMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoTetrahedronMesh3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoTetrahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numTetrahedra,
    jintArray tetrahedronNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoTetrahedronMesh3D>(handle)->mesh, numNodes, x, y, z, numTetrahedra,
      tetrahedronNodes);
}

}  // extern "C"
