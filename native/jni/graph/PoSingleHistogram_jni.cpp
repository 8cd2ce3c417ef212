// com.kestrum.tavrel.graph.PoSingleHistogram: a histogram from an origin, a count, values and
// UTF-8 names; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSingleHistogram.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoSingleHistogram_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoSingleHistogram>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoSingleHistogram_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoSingleHistogram>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoSingleHistogram_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSingleHistogram>();
}

// The origin is converted ReadWrite (copied back unchanged), then the names,
// then the values.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoSingleHistogram_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray origin, jfloat histogSize, jint type, jint numValues, jfloatArray values,
    jobjectArray names) {
  return tavrel::constructInOrder(
      env,
      [=](const SbVec2f& o, const char** n, const float* v) {
        return tavrel::construct<PoSingleHistogram>(o, histogSize, tavrel::toEnum<PoHistogram::Type>(type), numValues, v, n);
      },
      tavrel::point2(origin), tavrel::utf8(names), values);
}

}  // extern "C"
