// com.kestrum.tavrel.graph.PoPieChart2D, a pie chart in the plane: its slices from a count
// (narrowed to a short), names, values and SbColor objects.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPieChart2D.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPieChart2D>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart2D_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray center, jfloat radius, jint count, jobjectArray names, jfloatArray values,
    jint numColors, jobjectArray colors) {
  return tavrel::constructPieChart<PoPieChart2D, SbVec2f>(env, center, count, names, values, numColors, colors, radius);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPieChart2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPieChart2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart2D_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPieChart2D>();
}

}  // extern "C"
