// com.kestrum.tavrel.graph.PoValuedMarkerField: markers from a count, SbVec2f points and two
// value lists; its data mapping by address; class-level getters.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PoValuedMarkerField.h>

#include "common/ClassFamilies.h"
#include "common/GraphArrays.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoValuedMarkerField>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoValuedMarkerField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoValuedMarkerField>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_ctorImpl1(
    JNIEnv* env, jclass, jint num, jobjectArray points, jfloatArray values1, jfloatArray values2) {
  return tavrel::constructFromJava<PoValuedMarkerField>(env, num, tavrel::points2(points), values1, values2);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_setDataMappingImpl(
    JNIEnv*, jobject, jlong handle, jlong mapping) {
  tavrel::setLink(handle, &PoValuedMarkerField::setDataMapping, mapping);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoValuedMarkerField_getDataMappingImpl(
    JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoValuedMarkerField::getDataMapping);
}

}  // extern "C"
