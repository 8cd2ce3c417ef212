// com.kestrum.tavrel.fields.PoSFIrregularMesh1D: the single-value field of a 1D mesh of nodes at given abscissas.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFIrregularMesh1D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFIrregularMesh1D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFIrregularMesh1D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFIrregularMesh1D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFIrregularMesh1D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFIrregularMesh1D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFIrregularMesh1D>(handle), numNodes, x);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIrregularMesh1D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFIrregularMesh1D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
