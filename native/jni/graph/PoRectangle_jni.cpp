// com.kestrum.tavrel.graph.PoRectangle, a rectangle from two opposite corners.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoRectangle.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoRectangle_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoRectangle>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoRectangle_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray corner1, jfloatArray corner2) {
  return tavrel::constructFromPoints<PoRectangle, SbVec2f>(env, corner1, corner2);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoRectangle_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoRectangle>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoRectangle_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoRectangle>();
}

}  // extern "C"
