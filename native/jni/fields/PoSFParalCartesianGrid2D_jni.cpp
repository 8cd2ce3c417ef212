// com.kestrum.tavrel.fields.PoSFParalCartesianGrid2D: the single-value field of a rectilinear grid: node (i, j) at
// (x[i], y[j]).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFParalCartesianGrid2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFParalCartesianGrid2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFParalCartesianGrid2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFParalCartesianGrid2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_setValueImpl(JNIEnv*, jobject,
    jlong handle, jlong mesh) {
  tavrel::setFieldValue<PoSFParalCartesianGrid2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFParalCartesianGrid2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numX, jint numY, jfloatArray x, jfloatArray y, jfloatArray z) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFParalCartesianGrid2D>(handle), numX, numY, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFParalCartesianGrid2D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFParalCartesianGrid2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
