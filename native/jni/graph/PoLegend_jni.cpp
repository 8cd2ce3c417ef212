// com.kestrum.tavrel.graph.PoLegend, base of the legends: its text attributes by address;
// class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PoLegend.h>

#include "common/ClassFamilies.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoLegend_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoLegend>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLegend_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoLegend>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoLegend_setMiscTextAttrImpl(
    JNIEnv*, jobject, jlong handle, jlong attr) {
  tavrel::setLink(handle, &PoLegend::setMiscTextAttr, attr);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoLegend_getMiscTextAttrImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoLegend::getMiscTextAttr);
}

// PoLegend.Visibilities

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Visibilities_getVISIBILITYOFFNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::VISIBILITYOFF);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Visibilities_getVISIBILITYONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::VISIBILITYON);
}

// PoLegend.TextPaths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024TextPaths_getPATHRIGHTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::PATHRIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024TextPaths_getPATHLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::PATHLEFT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024TextPaths_getPATHUPNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::PATHUP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024TextPaths_getPATHDOWNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::PATHDOWN);
}

// PoLegend.Positions

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Positions_getPOSBOTTOMNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::POSBOTTOM);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Positions_getPOSTOPNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::POSTOP);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Positions_getPOSRIGHTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::POSRIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024Positions_getPOSLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::POSLEFT);
}

// PoLegend.MarginTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024MarginTypes_getRELMARGINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::RELMARGIN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024MarginTypes_getFIXEDMARGINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::FIXEDMARGIN);
}

// PoLegend.IncrementTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024IncrementTypes_getVERTICALINCREMENTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::VERTICALINCREMENT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoLegend_00024IncrementTypes_getHORIZONTALINCREMENTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoLegend::HORIZONTALINCREMENT);
}

}  // extern "C"
