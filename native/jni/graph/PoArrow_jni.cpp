// com.kestrum.tavrel.graph.PoArrow, an arrow along a polyline of SbVec2f objects (the toolkit gets
// the count given, not the array's length), and its end patterns.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoArrow.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoArrow>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow_ctorImpl1(
    JNIEnv* env, jclass, jint count, jobjectArray points, jint startPattern, jint endPattern, jfloat width,
    jfloat length) {
  return tavrel::constructArrow<PoArrow, SbVec2f>(env, count, points, startPattern, endPattern, width, length);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoArrow_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoArrow>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoArrow>();
}

// PoArrow.PatternTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow_00024PatternTypes_getNOPATTERNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow::NOPATTERN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow_00024PatternTypes_getDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow::DIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow_00024PatternTypes_getINDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow::INDIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow_00024PatternTypes_getRECTANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow::RECTANGLE);
}

}  // extern "C"
