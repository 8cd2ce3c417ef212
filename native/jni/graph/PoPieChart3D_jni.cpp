// com.kestrum.tavrel.graph.PoPieChart3D, a pie chart with a height: its slices from a count
// (narrowed to a short), names, values and SbColor objects.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPieChart3D.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPieChart3D>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart3D_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloat radius, jfloat height, jint count, jobjectArray names,
    jfloatArray values, jint numColors, jobjectArray colors) {
  return tavrel::constructPieChart<PoPieChart3D, SbVec3f>(env, center, count, names, values, numColors, colors, radius,
                                                          height);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPieChart3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPieChart3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart3D_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPieChart3D>();
}

}  // extern "C"
