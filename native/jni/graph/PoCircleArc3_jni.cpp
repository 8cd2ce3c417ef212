// com.kestrum.tavrel.graph.PoCircleArc3, base of the 3D circle arcs: class-level getters and the
// arc types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCircleArc3.h>

#include "common/ClassFamilies.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCircleArc3>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoCircleArc3>();
}

// PoCircleArc3.ArcTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3_00024ArcTypes_getOPENEDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc3::OPENED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3_00024ArcTypes_getENDCLOSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc3::ENDCLOSE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoCircleArc3_00024ArcTypes_getCENTERCLOSENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoCircleArc3::CENTERCLOSE);
}

}  // extern "C"
