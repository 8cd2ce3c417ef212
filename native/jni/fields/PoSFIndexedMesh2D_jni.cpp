// com.kestrum.tavrel.fields.PoSFIndexedMesh2D: the single-value field of an unstructured 2D mesh of triangles and
// quadrangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFIndexedMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFIndexedMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFIndexedMesh2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_getValueImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fieldValue<PoSFIndexedMesh2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFIndexedMesh2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_equalsImpl(JNIEnv*, jobject, jlong handle,
    jlong other) {
  return tavrel::fieldsEqual<PoSFIndexedMesh2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFIndexedMesh2D>(handle), numNodes, x, y, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFIndexedMesh2D>(handle), numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh2D_addFieldToContainerNative(JNIEnv* env, jobject,
    jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFIndexedMesh2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
