// com.kestrum.tavrel.nodes.PoCartesianGrid3D: the mesh node of a curvilinear 3D grid: x, y and z given per node.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCartesianGrid3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoCartesianGrid3D>(handle)->mesh, numX, numY, numZ, x, y, z);
}

}  // extern "C"
