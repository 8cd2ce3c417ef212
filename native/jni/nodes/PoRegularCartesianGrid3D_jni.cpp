// com.kestrum.tavrel.nodes.PoRegularCartesianGrid3D: the mesh node of a regular 3D grid: nodes evenly spread over a
// box.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoRegularCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoRegularCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoRegularCartesianGrid3D>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoRegularCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloat xmin, jfloat ymin, jfloat zmin, jfloat xmax, jfloat ymax,
    jfloat zmax) {
  tavrel::setGeometryOf(env, &tavrel::fromHandle<PoRegularCartesianGrid3D>(handle)->mesh, numX, numY, numZ, xmin, ymin,
      zmin, xmax, ymax, zmax);
}

}  // extern "C"
