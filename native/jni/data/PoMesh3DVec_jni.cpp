// Vectors of a 3D mesh: class-level getters and the seven enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoMesh3DVec.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoMesh3DVec>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh3DVec>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoMesh3DVec>();
}

// PoMesh3DVec.EliminationStatusType

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024EliminationStatusType_getNONENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::NONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024EliminationStatusType_getTOOSMALLNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::TOOSMALL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024EliminationStatusType_getTOOLONGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::TOOLONG);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024EliminationStatusType_getTOOSMALLORLONGNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::TOOSMALLORLONG);
}

// PoMesh3DVec.BodyShapes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyShapes_getNOBODYNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::NOBODY);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyShapes_getLINENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::LINE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyShapes_getCYLINDERNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CYLINDER);
}

// PoMesh3DVec.BodyLengthTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyLengthTypes_getCONSTANTLENGTHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CONSTANTLENGTH);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyLengthTypes_getRELATIVELENGTHNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::RELATIVELENGTH);
}

// PoMesh3DVec.BodyRadiusTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyRadiusTypes_getCONSTANTRADIUSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CONSTANTRADIUS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024BodyRadiusTypes_getRELATIVERADIUSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::RELATIVERADIUS);
}

// PoMesh3DVec.ArrowShapes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getNOSHAPENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::NOSHAPE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getPOINTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::POINT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getCHEVRONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CHEVRON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getTRIANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::TRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getRECTANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::RECTANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getCONENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CONE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getBOXNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::BOX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getSPHERENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::SPHERE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getINDIRECTCHEVRONNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::INDIRECTCHEVRON);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getINDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::INDIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowShapes_getINDIRECTCONENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::INDIRECTCONE);
}

// PoMesh3DVec.ArrowHeightTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowHeightTypes_getCONSTANTHEIGHTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CONSTANTHEIGHT);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowHeightTypes_getRELATIVEHEIGHTNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::RELATIVEHEIGHT);
}

// PoMesh3DVec.ArrowColoringTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowColoringTypes_getCONSTANTCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::CONSTANTCOLOR);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowColoringTypes_getMODULEMAPPINGCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::MODULEMAPPINGCOLOR);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PoMesh3DVec_00024ArrowColoringTypes_getSCALARMAPPINGCOLORNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoMesh3DVec::SCALARMAPPINGCOLOR);
}

}  // extern "C"
