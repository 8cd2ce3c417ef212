// com.kestrum.tavrel.graph.PoMultipleHistogram: histograms from an origin, two counts, values
// and two UTF-8 name lists; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMultipleHistogram.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoMultipleHistogram>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMultipleHistogram>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMultipleHistogram>();
}

// The origin is converted ReadWrite (copied back unchanged), then the two
// name lists, then the values.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_ctorImpl1(
    JNIEnv* env, jclass, jfloatArray origin, jfloat histogSize, jint type, jint numHistog, jint numValues,
    jfloatArray values, jobjectArray histogNames, jobjectArray valueNames) {
  return tavrel::constructInOrder(
      env,
      [=](const SbVec2f& o, const char** histogs, const char** valueLabels, const float* v) {
        return tavrel::construct<PoMultipleHistogram>(o, histogSize, tavrel::toEnum<PoHistogram::Type>(type), numHistog,
                                                      numValues, v, histogs, valueLabels);
      },
      tavrel::point2(origin), tavrel::utf8(histogNames), tavrel::utf8(valueNames), values);
}

// PoMultipleHistogram.HistogPaths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_00024HistogPaths_getROWCOLUMNNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMultipleHistogram::ROWCOLUMN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_00024HistogPaths_getCOLUMNROWNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMultipleHistogram::COLUMNROW);
}

// PoMultipleHistogram.Representations

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_00024Representations_getJUXTAPOSEDNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMultipleHistogram::JUXTAPOSED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_00024Representations_getACCUMULATEDNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMultipleHistogram::ACCUMULATED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoMultipleHistogram_00024Representations_getPERCENTAGENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMultipleHistogram::PERCENTAGE);
}

}  // extern "C"
