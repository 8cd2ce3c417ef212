// com.kestrum.tavrel.nodes.PoParalCartesianGrid3D: the mesh node of a rectilinear 3D grid: node (i, j, k) at (x[i],
// y[j], z[k]).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoParalCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoParalCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoParalCartesianGrid3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoParalCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoParalCartesianGrid3D>(handle)->mesh, numX, numY, numZ, x, y, z);
}

}  // extern "C"
