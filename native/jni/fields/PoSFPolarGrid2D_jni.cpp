// com.kestrum.tavrel.fields.PoSFPolarGrid2D: the single-value field of a polar grid: node (i, j) at radius x[i] and
// angle y[j] (degrees).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFPolarGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFPolarGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFPolarGrid2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_getValueImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fieldValue<PoSFPolarGrid2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFPolarGrid2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_equalsImpl(JNIEnv*, jobject, jlong handle,
    jlong other) {
  return tavrel::fieldsEqual<PoSFPolarGrid2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFPolarGrid2D>(handle), numX, numY, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFPolarGrid2D_addFieldToContainerNative(JNIEnv* env, jobject,
    jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFPolarGrid2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
