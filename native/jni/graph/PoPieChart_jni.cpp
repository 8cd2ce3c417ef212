// com.kestrum.tavrel.graph.PoPieChart, base of the pie charts: the text attribute and number format
// kept by address, the slice translations, picking (the picked slice at element 0 of the output)
// and the annotation enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoPieChart.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

using tavrel::fromHandle;

namespace {
PoPieChart* chart(jlong handle) { return fromHandle<PoPieChart>(handle); }
}  // namespace

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPieChart>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPieChart>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_setMiscTextAttrImpl(
    JNIEnv*, jobject, jlong handle, jlong attr) {
  chart(handle)->setMiscTextAttr(fromHandle<PbMiscTextAttr>(attr));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getMiscTextAttrImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::toHandle(chart(handle)->getMiscTextAttr());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_setFormatImpl(
    JNIEnv*, jobject, jlong handle, jlong format) {
  chart(handle)->setFormat(fromHandle<PbNumericDisplayFormat>(format));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::toHandle(chart(handle)->getFormat());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_setSliceToTranslateImpl(
    JNIEnv*, jobject, jlong handle, jint slice, jfloat distance) {
  chart(handle)->setSliceToTranslate(slice, distance);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getSliceToTranslateImpl(
    JNIEnv*, jobject, jlong handle, jint slice) {
  return chart(handle)->getSliceToTranslate(slice);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_getPickedSliceNumberImpl(
    JNIEnv* env, jobject, jlong handle, jlong path, jintArray slice) {
  return tavrel::pickedSlice<PoPieChart>(env, handle, path, slice);
}

// PoPieChart.IntAnnotPositions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024IntAnnotPositions_getRADIALINTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::RADIALINTPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024IntAnnotPositions_getHORINTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::HORINTPOS);
}

// PoPieChart.ExtAnnotPositions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024ExtAnnotPositions_getRADIALEXTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::RADIALEXTPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024ExtAnnotPositions_getHOREXTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::HOREXTPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024ExtAnnotPositions_getHORALIGNEDEXTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::HORALIGNEDEXTPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024ExtAnnotPositions_getVERTALIGNEDEXTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::VERTALIGNEDEXTPOS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024ExtAnnotPositions_getSQUAREALIGNEDEXTPOSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::SQUAREALIGNEDEXTPOS);
}

// PoPieChart.Alignments

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024Alignments_getLEFTALIGNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::LEFTALIGN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024Alignments_getCENTERALIGNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::CENTERALIGN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024Alignments_getRIGHTALIGNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::RIGHTALIGN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024Alignments_getINWARDSALIGNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::INWARDSALIGN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024Alignments_getOUTWARDSALIGNNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::OUTWARDSALIGN);
}

// PoPieChart.PercentStatus

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024PercentStatus_getABSOLUTENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::ABSOLUTE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChart_00024PercentStatus_getPERCENTAGENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoPieChart::PERCENTAGE);
}

}  // extern "C"
