// com.kestrum.tavrel.graph.PoPointsFieldBars: bars from a count, SbVec3f points, heights and two
// sizes; its data mapping by address; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PoPointsFieldBars.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPointsFieldBars>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPointsFieldBars>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPointsFieldBars>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_ctorImpl1(
    JNIEnv* env, jclass, jint num, jobjectArray points, jfloatArray heights, jfloat width1, jfloat width2) {
  return tavrel::constructFromJava<PoPointsFieldBars>(env, num, tavrel::points3(points), heights, width1, width2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_setDataMappingImpl(
    JNIEnv*, jobject, jlong handle, jlong mapping) {
  tavrel::setLink(handle, &PoPointsFieldBars::setDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPointsFieldBars_getDataMappingImpl(
    JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoPointsFieldBars::getDataMapping);
}

}  // extern "C"
