// com.kestrum.tavrel.fields.PoSFCartesianGrid2D: the single-value field of a curvilinear grid: x and y given per
// node.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFCartesianGrid2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFCartesianGrid2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFCartesianGrid2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFCartesianGrid2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFCartesianGrid2D>(handle), numX, numY, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFCartesianGrid2D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFCartesianGrid2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
