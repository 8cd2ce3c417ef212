// com.kestrum.tavrel.graph.PoArrow3, an arrow along a polyline of SbVec3f objects (the toolkit gets
// the count given, not the array's length), and its end patterns.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoArrow3.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoArrow3>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_ctorImpl1(
    JNIEnv* env, jclass, jint count, jobjectArray points, jint startPattern, jint endPattern, jfloat width,
    jfloat length) {
  return tavrel::constructArrow<PoArrow3, SbVec3f>(env, count, points, startPattern, endPattern, width, length);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoArrow3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoArrow3>();
}

// PoArrow3.PatternTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_00024PatternTypes_getNOPATTERNNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow3::NOPATTERN);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_00024PatternTypes_getDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow3::DIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_00024PatternTypes_getINDIRECTTRIANGLENative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow3::INDIRECTTRIANGLE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoArrow3_00024PatternTypes_getRECTANGLENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoArrow3::RECTANGLE);
}

}  // extern "C"
