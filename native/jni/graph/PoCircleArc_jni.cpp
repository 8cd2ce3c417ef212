// com.kestrum.tavrel.graph.PoCircleArc, base of the 2D circle arcs: class-level getters and the arc
// types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArc.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArc>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArc>();
}

// PoCircleArc.ArcTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc_00024ArcTypes_getOPENEDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc::OPENED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc_00024ArcTypes_getENDCLOSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc::ENDCLOSE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc_00024ArcTypes_getCENTERCLOSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc::CENTERCLOSE);
}

}  // extern "C"
