// com.kestrum.tavrel.nodes.PoHexahedronMesh3D: the mesh node of a 3D mesh of hexahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoHexahedronMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoHexahedronMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoHexahedronMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoHexahedronMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoHexahedronMesh3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoHexahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numHexahedra,
    jintArray hexahedronNodes) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoHexahedronMesh3D>(handle)->mesh, numNodes, x, y, z, numHexahedra,
      hexahedronNodes);
}

}  // extern "C"
