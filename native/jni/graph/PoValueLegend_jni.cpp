// com.kestrum.tavrel.graph.PoValueLegend, base of the value legends: its isovalue list, data
// mapping and format by address; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoValueLegend.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoValueLegend>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoValueLegend>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_setIsovaluesListImpl(
    JNIEnv*, jobject, jlong handle, jlong list) {
  tavrel::setLink(handle, &PoValueLegend::setIsovaluesList, list);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_getIsovaluesListImpl(
    JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoValueLegend::getIsovaluesList);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_setDataMappingImpl(
    JNIEnv*, jobject, jlong handle, jlong mapping) {
  tavrel::setLink(handle, &PoValueLegend::setDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_getDataMappingImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoValueLegend::getDataMapping);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_setFormatImpl(
    JNIEnv*, jobject, jlong handle, jlong format) {
  tavrel::setLink(handle, &PoValueLegend::setFormat, format);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValueLegend_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoValueLegend::getFormat);
}

}  // extern "C"
