// com.kestrum.tavrel.nodes.PoRegularMesh1D: the mesh node of a 1D mesh of evenly spaced nodes.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoRegularMesh1D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoRegularMesh1D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoRegularMesh1D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoRegularMesh1D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoRegularMesh1D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoRegularMesh1D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloat xmin, jfloat xmax) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoRegularMesh1D>(handle)->mesh, numNodes, xmin, xmax);
}

}  // extern "C"
