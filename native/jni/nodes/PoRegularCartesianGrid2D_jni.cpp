// com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D: the mesh node of a regular grid: nodes evenly spread over a
// rectangle.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoRegularCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoRegularCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoRegularCartesianGrid2D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax, jfloatArray z) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoRegularCartesianGrid2D>(handle)->mesh, numX, numY, xmin, ymin, xmax,
      ymax, z);
}

}  // extern "C"
