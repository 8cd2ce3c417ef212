// com.kestrum.tavrel.fields.PoSFMesh: the data sets added to the mesh that a
// mesh field holds, through the field's own operations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFMesh.h>

#include "common/ClassFamilies.h"
#include "common/DataSets.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace {
PoSFMesh* field(jlong handle) { return tavrel::fromHandle<PoSFMesh>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFMesh_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFMesh>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFMesh_addValuesSetImpl(JNIEnv* env, jobject, jlong handle,
    jint set, jfloatArray values, jstring name) {
  tavrel::addValuesSet(env, field(handle), set, values, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFMesh_addValuesSetImpl1(JNIEnv* env, jobject, jlong handle,
    jint set, jfloatArray values, jint binding, jstring name) {
  tavrel::addValuesSet<PoMeshProperty::DataBinding>(env, field(handle), set, values, binding, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFMesh_addStringsSetImpl(JNIEnv* env, jobject, jlong handle,
    jint set, jobjectArray strings, jstring name) {
  tavrel::addStringsSet(env, field(handle), set, strings, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFMesh_addVecsSetImpl(JNIEnv* env, jobject, jlong handle,
    jint set, jobjectArray vectors, jstring name) {
  tavrel::addVecsSet<SbVec3f>(env, field(handle), set, vectors, name);
}

}  // extern "C"
