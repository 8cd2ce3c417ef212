// com.kestrum.tavrel.nodes.PoDomain: a property node giving the graphs after it their domain: the
// box set from two vectors (arrays converted ReadWrite, read as SbVec2f or SbVec3f), the addresses
// of its transform and matrix, and the enumerations.

#include <jni.h>

#include <Corvel/SbVec.h>
#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoDomain.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/PropertyNodes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace {
PoDomain* domain(jlong handle) { return tavrel::fromHandle<PoDomain>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoDomain>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDomain>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_setValuesImpl(JNIEnv* env, jobject, jlong handle,
    jfloatArray min, jfloatArray max, jint type) {
  tavrel::setVectorValues<SbVec2f>(env, domain(handle), min, max, type);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_setValuesImpl1(JNIEnv* env, jobject, jlong handle,
    jfloatArray min, jfloatArray max, jint type) {
  tavrel::setVectorValues<SbVec3f>(env, domain(handle), min, max, type);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_getTransformImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::toHandle(domain(handle)->getTransform());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_getMatrixTransformImpl(JNIEnv*, jobject,
    jlong handle) {
  return tavrel::toHandle(domain(handle)->getMatrixTransform());
}

// PoDomain.TransformTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024TransformTypes_getTRANSFORM01Native(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::TRANSFORM01);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024TransformTypes_getSCALEXFIXEDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::SCALEXFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024TransformTypes_getSCALEYFIXEDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::SCALEYFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024TransformTypes_getSCALEZFIXEDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::SCALEZFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024TransformTypes_getSCALEMAXXYZFIXEDNative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::SCALEMAXXYZFIXED);
}

// PoDomain.BoundingBoxTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024BoundingBoxTypes_getASISNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoDomain::ASIS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024BoundingBoxTypes_getMINBOUNDINGCUBENative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::MINBOUNDINGCUBE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_nodes_PoDomain_00024BoundingBoxTypes_getMAXBOUNDEDCUBENative(JNIEnv*,
    jclass) {
  return tavrel::enumValue(PoDomain::MAXBOUNDEDCUBE);
}

}  // extern "C"
