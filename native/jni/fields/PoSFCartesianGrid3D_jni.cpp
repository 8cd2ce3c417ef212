// com.kestrum.tavrel.fields.PoSFCartesianGrid3D: the single-value field of a curvilinear 3D grid: x, y and z given
// per node.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFCartesianGrid3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFCartesianGrid3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFCartesianGrid3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFCartesianGrid3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFCartesianGrid3D>(handle), numX, numY, numZ, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid3D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFCartesianGrid3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
