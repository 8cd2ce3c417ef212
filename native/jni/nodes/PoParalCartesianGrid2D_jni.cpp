// com.kestrum.tavrel.nodes.PoParalCartesianGrid2D: the mesh node of a rectilinear grid: node (i, j) at (x[i], y[j]).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoParalCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoParalCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoParalCartesianGrid2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoParalCartesianGrid2D>(handle)->mesh, numX, numY, x, y, z);
}

}  // extern "C"
