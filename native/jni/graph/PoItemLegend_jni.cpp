// com.kestrum.tavrel.graph.PoItemLegend: a legend from two corners, a count, UTF-8 names and
// SbColor colours; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoItemLegend.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoItemLegend_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoItemLegend>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoItemLegend_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoItemLegend>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoItemLegend_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoItemLegend>();
}

// The corners are converted ReadWrite and copied back unchanged.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoItemLegend_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2, jint numItems, jobjectArray names,
    jobjectArray colors) {
  return tavrel::constructFromJava<PoItemLegend>(env, tavrel::point2(corner1), tavrel::point2(corner2), numItems,
                                                 tavrel::utf8(names), tavrel::colors(colors));
}

}  // extern "C"
