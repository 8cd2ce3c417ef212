// com.kestrum.tavrel.fields.PoSFIndexedMesh3D: the single-value field of an unstructured 3D mesh of tetrahedra,
// pyramids, wedges and hexahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFIndexedMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFIndexedMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFIndexedMesh3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_getValueImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fieldValue<PoSFIndexedMesh3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFIndexedMesh3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_equalsImpl(JNIEnv*, jobject, jlong handle,
    jlong other) {
  return tavrel::fieldsEqual<PoSFIndexedMesh3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numCells, jintArray cellTypes,
    jintArray cellIndex) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFIndexedMesh3D>(handle), numNodes, x, y, z, numCells, cellTypes,
      cellIndex);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFIndexedMesh3D_addFieldToContainerNative(JNIEnv* env, jobject,
    jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFIndexedMesh3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
