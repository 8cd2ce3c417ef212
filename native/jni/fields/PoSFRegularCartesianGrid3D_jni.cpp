// com.kestrum.tavrel.fields.PoSFRegularCartesianGrid3D: the single-value field of a regular 3D grid: nodes evenly
// spread over a box.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFRegularCartesianGrid3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFRegularCartesianGrid3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_getClassTypeId(JNIEnv* env,
    jclass) {
  return tavrel::classTypeName<PoSFRegularCartesianGrid3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFRegularCartesianGrid3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_setValueImpl(JNIEnv*, jobject,
    jlong handle, jlong mesh) {
  tavrel::setFieldValue<PoSFRegularCartesianGrid3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFRegularCartesianGrid3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jint numZ, jfloat xmin, jfloat ymin, jfloat zmin, jfloat xmax, jfloat ymax,
    jfloat zmax) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFRegularCartesianGrid3D>(handle), numX, numY, numZ, xmin, ymin, zmin,
      xmax, ymax, zmax);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid3D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFRegularCartesianGrid3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
