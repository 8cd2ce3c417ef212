// com.kestrum.tavrel.nodes.PoPolarGrid2D: the mesh node of a polar grid: node (i, j) at radius x[i] and angle y[j]
// (degrees).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPolarGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoPolarGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPolarGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoPolarGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoPolarGrid2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoPolarGrid2D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
    jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoPolarGrid2D>(handle)->mesh, numX, numY, x, y, z);
}

}  // extern "C"
