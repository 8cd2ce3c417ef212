// Vectors of a 2D mesh: class-level getters and the seven enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh2DVec.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMesh2DVec>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh2DVec>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh2DVec>();
}

// PoMesh2DVec.EliminationStatusType

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024EliminationStatusType_getNONENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::NONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024EliminationStatusType_getTOOSMALLNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::TOOSMALL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024EliminationStatusType_getTOOLONGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::TOOLONG);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024EliminationStatusType_getTOOSMALLORLONGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::TOOSMALLORLONG);
}

// PoMesh2DVec.BodyShapes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyShapes_getNOBODYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::NOBODY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyShapes_getLINENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::LINE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyShapes_getCYLINDERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CYLINDER);
}

// PoMesh2DVec.BodyLengthTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyLengthTypes_getCONSTANTLENGTHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CONSTANTLENGTH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyLengthTypes_getRELATIVELENGTHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::RELATIVELENGTH);
}

// PoMesh2DVec.BodyRadiusTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyRadiusTypes_getCONSTANTRADIUSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CONSTANTRADIUS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024BodyRadiusTypes_getRELATIVERADIUSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::RELATIVERADIUS);
}

// PoMesh2DVec.ArrowShapes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getNOSHAPENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::NOSHAPE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getPOINTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::POINT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getCHEVRONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CHEVRON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getTRIANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::TRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getRECTANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::RECTANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getCONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getBOXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::BOX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getSPHERENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::SPHERE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getINDIRECTCHEVRONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::INDIRECTCHEVRON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getINDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::INDIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowShapes_getINDIRECTCONENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::INDIRECTCONE);
}

// PoMesh2DVec.ArrowHeightTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowHeightTypes_getCONSTANTHEIGHTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CONSTANTHEIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowHeightTypes_getRELATIVEHEIGHTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::RELATIVEHEIGHT);
}

// PoMesh2DVec.ArrowColoringTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowColoringTypes_getCONSTANTCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::CONSTANTCOLOR);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowColoringTypes_getMODULEMAPPINGCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::MODULEMAPPINGCOLOR);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh2DVec_00024ArrowColoringTypes_getSCALARMAPPINGCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh2DVec::SCALARMAPPINGCOLOR);
}

}  // extern "C"
