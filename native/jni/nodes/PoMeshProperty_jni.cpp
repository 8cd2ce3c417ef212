// com.kestrum.tavrel.nodes.PoMeshProperty: what every mesh node offers (its mesh
// and the data sets added to it, through the node's own operations), and
// PoMeshProperty$DataBindings.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PoMeshProperty.h>

#include "common/ClassFamilies.h"
#include "common/DataSets.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace {
PoMeshProperty* node(jlong handle) { return tavrel::fromHandle<PoMeshProperty>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshProperty>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_getMeshImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoMeshProperty::getMesh);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_addValuesSetImpl(JNIEnv* env, jobject,
    jlong handle, jint set, jfloatArray values, jstring name) {
  tavrel::addValuesSet(env, node(handle), set, values, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_addValuesSetImpl1(JNIEnv* env, jobject,
    jlong handle, jint set, jfloatArray values, jint binding, jstring name) {
  tavrel::addValuesSet<PoMeshProperty::DataBinding>(env, node(handle), set, values, binding, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_addStringsSetImpl(JNIEnv* env, jobject,
    jlong handle, jint set, jobjectArray strings, jstring name) {
  tavrel::addStringsSet(env, node(handle), set, strings, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_addVecsSetImpl(JNIEnv* env, jobject,
    jlong handle, jint set, jobjectArray vectors, jstring name) {
  tavrel::addVecsSet<SbVec3f>(env, node(handle), set, vectors, name);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_00024DataBindings_getPERCELLNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMeshProperty::PER_CELL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoMeshProperty_00024DataBindings_getPERNODENative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoMeshProperty::PER_NODE);
}

}  // extern "C"
