// com.kestrum.tavrel.nodes.PoCartesianGrid2D: the mesh node of a curvilinear grid: x and y given per node.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCartesianGrid2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoCartesianGrid2D>(handle)->mesh, numX, numY, x, y, z);
}

}  // extern "C"
