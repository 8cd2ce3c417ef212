// com.kestrum.tavrel.graph.PoAxis, base of the single axes: text attributes, the graduation, title,
// tick, margin, grid and arrow settings through outputs, and the enumerations.

#include <jni.h>

#include <Corvel/SbString.h>
#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PoAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Links.h"
#include "common/Results.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace {
const PoAxis* axis(jlong handle) { return tavrel::fromHandle<const PoAxis>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoAxis>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_setMiscTextAttrImpl(JNIEnv*, jobject, jlong handle,
                                                                                jlong object) {
  tavrel::setLink(handle, &PoAxis::setMiscTextAttr, object);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getMiscTextAttrImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoAxis::getMiscTextAttr);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getReverseFlagImpl(JNIEnv*, jobject, jlong handle) {
  return axis(handle)->getReverseFlag();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getGradImpl(JNIEnv* env, jobject, jlong handle,
                                                                        jintArray visibility, jintArray position,
                                                                        jintArray path, jobjectArray text,
                                                                        jfloatArray value1, jfloatArray value2,
                                                                        jbooleanArray flag, jobjectArray text2) {
  PoAxis::Visibility v{};
  PoAxis::GradPosition p{};
  PoAxis::TextPath t{};
  SbString s1, s2;
  float f1 = 0.0f, f2 = 0.0f;
  int b = 0;
  axis(handle)->getGrad(v, p, t, s1, f1, f2, b, s2);
  tavrel::writeOutput(env, visibility, static_cast<int>(v));
  tavrel::writeOutput(env, position, static_cast<int>(p));
  tavrel::writeOutput(env, path, static_cast<int>(t));
  tavrel::storeString(env, text, s1);
  tavrel::writeOutput(env, value1, f1);
  tavrel::writeOutput(env, value2, f2);
  tavrel::writeOutput(env, flag, b);
  tavrel::storeString(env, text2, s2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getTitleImpl(JNIEnv* env, jobject, jlong handle,
                                                                         jintArray visibility, jintArray position,
                                                                         jintArray path, jobjectArray text,
                                                                         jfloatArray value1, jfloatArray value2,
                                                                         jobjectArray text2) {
  PoAxis::Visibility v{};
  PoAxis::TitlePosition p{};
  PoAxis::TextPath t{};
  SbString s1, s2;
  float f1 = 0.0f, f2 = 0.0f;
  axis(handle)->getTitle(v, p, t, s1, f1, f2, s2);
  tavrel::writeOutput(env, visibility, static_cast<int>(v));
  tavrel::writeOutput(env, position, static_cast<int>(p));
  tavrel::writeOutput(env, path, static_cast<int>(t));
  tavrel::storeString(env, text, s1);
  tavrel::writeOutput(env, value1, f1);
  tavrel::writeOutput(env, value2, f2);
  tavrel::storeString(env, text2, s2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getTickImpl(JNIEnv* env, jobject, jlong handle,
                                                                        jintArray visibility, jintArray position,
                                                                        jfloatArray value1, jfloatArray value2,
                                                                        jintArray subDef, jshortArray count1,
                                                                        jshortArray count2, jshortArray count3) {
  PoAxis::Visibility v{};
  PoAxis::TickPosition p{};
  PoAxis::TickSubDef d{};
  float f1 = 0.0f, f2 = 0.0f;
  unsigned short n1 = 0, n2 = 0, n3 = 0;
  axis(handle)->getTick(v, p, f1, f2, d, n1, n2, n3);
  tavrel::writeOutput(env, visibility, static_cast<int>(v));
  tavrel::writeOutput(env, position, static_cast<int>(p));
  tavrel::writeOutput(env, value1, f1);
  tavrel::writeOutput(env, value2, f2);
  tavrel::writeOutput(env, subDef, static_cast<int>(d));
  tavrel::writeUnsigned(env, {count1, count2, count3}, {n1, n2, n3});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getMarginImpl(JNIEnv* env, jobject, jlong handle,
                                                                          jintArray type, jfloatArray value1,
                                                                          jfloatArray value2) {
  PoAxis::MarginType m{};
  float f1 = 0.0f, f2 = 0.0f;
  axis(handle)->getMargin(m, f1, f2);
  tavrel::visibilityAndFloats(env, static_cast<int>(m), f1, f2, type, value1, value2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getGridImpl(JNIEnv* env, jobject, jlong handle,
                                                                        jintArray visibility, jfloatArray value1,
                                                                        jfloatArray value2) {
  PoAxis::Visibility v{};
  float f1 = 0.0f, f2 = 0.0f;
  axis(handle)->getGrid(v, f1, f2);
  tavrel::visibilityAndFloats(env, static_cast<int>(v), f1, f2, visibility, value1, value2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAxis_getArrowImpl(JNIEnv* env, jobject, jlong handle,
                                                                         jintArray visibility, jfloatArray value1,
                                                                         jfloatArray value2) {
  PoAxis::Visibility v{};
  float f1 = 0.0f, f2 = 0.0f;
  axis(handle)->getArrow(v, f1, f2);
  tavrel::visibilityAndFloats(env, static_cast<int>(v), f1, f2, visibility, value1, value2);
}

// PoAxis.Visibilities

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024Visibilities_getVISIBILITYOFFNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::VISIBILITYOFF);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024Visibilities_getVISIBILITYONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::VISIBILITYON);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024Visibilities_getVISIBILITYDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::VISIBILITYDEPEND);
}

// PoAxis.TextPaths

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TextPaths_getPATHRIGHTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PATHRIGHT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TextPaths_getPATHLEFTNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PATHLEFT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TextPaths_getPATHUPNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PATHUP);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TextPaths_getPATHDOWNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PATHDOWN);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TextPaths_getPATHDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PATHDEPEND);
}

// PoAxis.GradPositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024GradPositions_getGRADABOVENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::GRADABOVE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024GradPositions_getGRADBELOWNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::GRADBELOW);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024GradPositions_getGRADDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::GRADDEPEND);
}

// PoAxis.MarginTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024MarginTypes_getRELMARGINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::RELMARGIN);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024MarginTypes_getFIXEDMARGINNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::FIXEDMARGIN);
}

// PoAxis.TickPositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TickPositions_getTICKGRADSIDENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TICKGRADSIDE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TickPositions_getTICKGRADOTHERSIDENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TICKGRADOTHERSIDE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TickPositions_getTICKACROSSAXISNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TICKACROSSAXIS);
}

// PoAxis.TitlePositions

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TitlePositions_getTITLEMIDDLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TITLEMIDDLE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TitlePositions_getTITLEENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TITLEEND);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TitlePositions_getTITLEDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::TITLEDEPEND);
}

// PoAxis.TickSubDefs

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TickSubDefs_getNUMSUBTICKNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::NUMSUBTICK);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024TickSubDefs_getPERIODMAINTICKNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::PERIODMAINTICK);
}

// PoAxis.AxisReverses

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024AxisReverses_getAXISNOREVERSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::AXISNOREVERSE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024AxisReverses_getAXISREVERSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::AXISREVERSE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAxis_00024AxisReverses_getAXISREVERSEDEPENDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAxis::AXISREVERSEDEPEND);
}

}  // extern "C"
