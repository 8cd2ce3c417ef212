// com.kestrum.tavrel.graph.PoHistogram, base of the histograms: its text attributes, data
// mapping and format by address; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoHistogram.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoHistogram>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoHistogram>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_setMiscTextAttrImpl(
    JNIEnv*, jobject, jlong handle, jlong attr) {
  tavrel::setLink(handle, &PoHistogram::setMiscTextAttr, attr);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_getMiscTextAttrImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoHistogram::getMiscTextAttr);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_setDataMappingImpl(
    JNIEnv*, jobject, jlong handle, jlong mapping) {
  tavrel::setLink(handle, &PoHistogram::setDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_getDataMappingImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoHistogram::getDataMapping);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_setFormatImpl(
    JNIEnv*, jobject, jlong handle, jlong format) {
  tavrel::setLink(handle, &PoHistogram::setFormat, format);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_getFormatImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoHistogram::getFormat);
}

// PoHistogram.Types

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Types_getXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::X);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Types_getYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::Y);
}

// PoHistogram.Positions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSTOPOUTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSTOPOUT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSTOPINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSTOPIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSBOTTOMOUTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSBOTTOMOUT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSBOTTOMINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSBOTTOMIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSRIGHTOUTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSRIGHTOUT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSRIGHTINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSRIGHTIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSLEFTOUTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSLEFTOUT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSLEFTINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSLEFTIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSCENTERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSCENTER);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Positions_getPOSDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::POSDEPEND);
}

// PoHistogram.Visibilities

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Visibilities_getVISIBILITYOFFNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::VISIBILITYOFF);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Visibilities_getVISIBILITYONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::VISIBILITYON);
}

// PoHistogram.TextPaths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024TextPaths_getPATHRIGHTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::PATHRIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024TextPaths_getPATHLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::PATHLEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024TextPaths_getPATHUPNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::PATHUP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024TextPaths_getPATHDOWNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::PATHDOWN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024TextPaths_getPATHDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::PATHDEPEND);
}

// PoHistogram.BarSpaceTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024BarSpaceTypes_getRELSPACENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::RELSPACE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024BarSpaceTypes_getFIXEDSPACENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::FIXEDSPACE);
}

// PoHistogram.Colorings

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Colorings_getCOLORLISTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::COLORLIST);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoHistogram_00024Colorings_getDATAMAPPINGNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoHistogram::DATAMAPPING);
}

}  // extern "C"
