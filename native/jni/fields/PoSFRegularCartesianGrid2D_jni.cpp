// com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D: the single-value field of a regular grid: nodes evenly spread
// over a rectangle.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFRegularCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFRegularCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_getClassTypeId(JNIEnv* env,
    jclass) {
  return tavrel::classTypeName<PoSFRegularCartesianGrid2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFRegularCartesianGrid2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_setValueImpl(JNIEnv*, jobject,
    jlong handle, jlong mesh) {
  tavrel::setFieldValue<PoSFRegularCartesianGrid2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFRegularCartesianGrid2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloat xmin, jfloat ymin, jfloat xmax, jfloat ymax, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFRegularCartesianGrid2D>(handle), numX, numY, xmin, ymin, xmax, ymax,
      z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularCartesianGrid2D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFRegularCartesianGrid2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
