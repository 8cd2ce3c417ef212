// com.kestrum.tavrel.fields.PoSFTriangleMesh2D: the single-value field of a 2D mesh of triangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFTriangleMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFTriangleMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFTriangleMesh2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_getValueImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::fieldValue<PoSFTriangleMesh2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFTriangleMesh2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_equalsImpl(JNIEnv*, jobject, jlong handle,
    jlong other) {
  return tavrel::fieldsEqual<PoSFTriangleMesh2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numTriangles, jintArray triangleNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFTriangleMesh2D>(handle), numNodes, x, y, numTriangles,
      triangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numTriangles,
    jintArray triangleNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFTriangleMesh2D>(handle), numNodes, x, y, z, numTriangles,
      triangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_setGeometryImpl2(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFTriangleMesh2D>(handle), numNodes, x, y);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFTriangleMesh2D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFTriangleMesh2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
