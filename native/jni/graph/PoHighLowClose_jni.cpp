// com.kestrum.tavrel.graph.PoHighLowClose: a high-low-close chart from a count and four value
// lists; class-level getters and the close-bar positions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoHighLowClose.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoHighLowClose>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoHighLowClose>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoHighLowClose>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_ctorImpl1(
    JNIEnv* env, jclass, jint num, jfloatArray x, jfloatArray high, jfloatArray low, jfloatArray close) {
  return tavrel::constructFromJava<PoHighLowClose>(env, num, x, high, low, close);
}

// PoHighLowClose.HorCloseBarPositions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_00024HorCloseBarPositions_getLEFTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHighLowClose::LEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_00024HorCloseBarPositions_getMIDDLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHighLowClose::MIDDLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHighLowClose_00024HorCloseBarPositions_getRIGHTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHighLowClose::RIGHT);
}

}  // extern "C"
