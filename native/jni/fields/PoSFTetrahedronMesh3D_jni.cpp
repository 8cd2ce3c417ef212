// com.kestrum.tavrel.fields.PoSFTetrahedronMesh3D: the single-value field of a 3D mesh of tetrahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFTetrahedronMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFTetrahedronMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFTetrahedronMesh3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFTetrahedronMesh3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_setValueImpl(JNIEnv*, jobject,
    jlong handle, jlong mesh) {
  tavrel::setFieldValue<PoSFTetrahedronMesh3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFTetrahedronMesh3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numTetrahedra,
    jintArray tetrahedronNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFTetrahedronMesh3D>(handle), numNodes, x, y, z, numTetrahedra,
      tetrahedronNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTetrahedronMesh3D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFTetrahedronMesh3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
