// com.kestrum.tavrel.fields.PoSFHexahedronMesh3D: the single-value field of a 3D mesh of hexahedra.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFHexahedronMesh3D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFHexahedronMesh3D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFHexahedronMesh3D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFHexahedronMesh3D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFHexahedronMesh3D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFHexahedronMesh3D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numHexahedra,
    jintArray hexahedronNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFHexahedronMesh3D>(handle), numNodes, x, y, z, numHexahedra,
      hexahedronNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFHexahedronMesh3D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFHexahedronMesh3D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
