// com.kestrum.tavrel.nodes.PoIrregularMesh1D: the mesh node of a 1D mesh of nodes at given abscissas.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIrregularMesh1D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIrregularMesh1D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIrregularMesh1D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIrregularMesh1D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIrregularMesh1D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIrregularMesh1D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoIrregularMesh1D>(handle)->mesh, numNodes, x);
}

}  // extern "C"
