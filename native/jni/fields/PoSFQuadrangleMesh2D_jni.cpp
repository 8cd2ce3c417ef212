// com.kestrum.tavrel.fields.PoSFQuadrangleMesh2D: the single-value field of a 2D mesh of quadrangles.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoSFQuadrangleMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/Fields.h"
#include "common/Handles.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoSFQuadrangleMesh2D>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoSFQuadrangleMesh2D>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_getValueImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::fieldValue<PoSFQuadrangleMesh2D>(handle);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_setValueImpl(JNIEnv*, jobject, jlong handle,
    jlong mesh) {
  tavrel::setFieldValue<PoSFQuadrangleMesh2D>(handle, mesh);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_equalsImpl(JNIEnv*, jobject,
    jlong handle, jlong other) {
  return tavrel::fieldsEqual<PoSFQuadrangleMesh2D>(handle, other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_setGeometryImpl(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jint numQuadrangles, jintArray quadrangleNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFQuadrangleMesh2D>(handle), numNodes, x, y, numQuadrangles,
      quadrangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_setGeometryImpl1(JNIEnv* env, jobject,
    jlong handle, jint numNodes, jfloatArray x, jfloatArray y, jfloatArray z, jint numQuadrangles,
    jintArray quadrangleNodes) {
  tavrel::setGeometryOf(env, tavrel::fromHandle<PoSFQuadrangleMesh2D>(handle), numNodes, x, y, z, numQuadrangles,
      quadrangleNodes);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_fields_PoSFQuadrangleMesh2D_addFieldToContainerNative(JNIEnv* env,
    jobject, jlong handle, jlong container, jstring name, jint fieldType, jlong value) {
  tavrel::addFieldToContainer<PoSFQuadrangleMesh2D>(env, handle, container, name, fieldType, value);
}

}  // extern "C"
