// com.kestrum.tavrel.fields.PoSFParalCartesianGrid3D: the single-value field of a rectilinear 3D grid: node (i, j, k)
// at (x[i], y[j], z[k]).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFParalCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFParalCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFParalCartesianGrid3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFParalCartesianGrid3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_setValueImpl(JNIEnv*, jobject,
    jlong handle, jlong mesh) {
  tavrel::setFieldValue<PoSFParalCartesianGrid3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFParalCartesianGrid3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFParalCartesianGrid3D>(handle), numX, numY, numZ, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid3D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFParalCartesianGrid3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
