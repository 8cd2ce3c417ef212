// com.kestrum.tavrel.fields.PoSFRegularMesh1D: the single-value field of a 1D mesh of evenly spaced nodes.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFRegularMesh1D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFRegularMesh1D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFRegularMesh1D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_getValueImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fieldValue<PoSFRegularMesh1D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFRegularMesh1D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_equalsImpl(JNIEnv*, jobject, jlong handle,
    jlong other) {
  return tavrel::fieldsEqual<PoSFRegularMesh1D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloat xmin, jfloat xmax) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFRegularMesh1D>(handle), numNodes, xmin, xmax);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFRegularMesh1D_addFieldToContainerNative(JNIEnv* env, jobject,
    jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFRegularMesh1D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
