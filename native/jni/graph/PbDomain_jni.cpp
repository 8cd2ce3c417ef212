// com.kestrum.tavrel.graph.PbDomain: constructor functions, the box in its 2D
// and 3D forms (arrays taken as SbBox2f / SbBox3f, converted ReadWrite, so the
// box the toolkit writes back reaches Java), the matrix, the transform type
// and its results, comparison, and the enumerations.

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbDomain.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/ValueArrays.h"

using tavrel::fromHandle;
using tavrel::toEnum;
using tavrel::valueIn;

namespace {
PbDomain* domain(jlong handle) { return fromHandle<PbDomain>(handle); }

PbDomain::BoundingBoxType boxType(jint type) { return toEnum<PbDomain::BoundingBoxType>(type); }

constexpr ArrayHelper::AccessMode kReadWrite = ArrayHelper::ReadWrite;
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbDomain>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbDomain>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl2(JNIEnv* env, jclass, jfloatArray box,
                                                                       jint type) {
  ArrayHelper helper(env);
  return tavrel::construct<PbDomain>(valueIn<SbBox2f>(helper, box, kReadWrite), boxType(type));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl3(JNIEnv* env, jclass, jfloatArray box,
                                                                       jint type) {
  ArrayHelper helper(env);
  return tavrel::construct<PbDomain>(valueIn<SbBox3f>(helper, box, kReadWrite), boxType(type));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl4(JNIEnv*, jclass, jfloat xmin, jfloat ymin,
                                                                       jfloat xmax, jfloat ymax, jint type) {
  return tavrel::construct<PbDomain>(xmin, ymin, xmax, ymax, boxType(type));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_ctorImpl5(JNIEnv*, jclass, jfloat xmin, jfloat ymin,
                                                                       jfloat zmin, jfloat xmax, jfloat ymax,
                                                                       jfloat zmax, jint type) {
  return tavrel::construct<PbDomain>(xmin, ymin, zmin, xmax, ymax, zmax, boxType(type));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_setDomainImpl(JNIEnv*, jobject, jlong handle,
                                                                          jfloat xmin, jfloat ymin, jfloat xmax,
                                                                          jfloat ymax, jint type) {
  domain(handle)->setDomain(xmin, ymin, xmax, ymax, boxType(type));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_setDomainImpl1(JNIEnv*, jobject, jlong handle,
                                                                           jfloat xmin, jfloat ymin, jfloat zmin,
                                                                           jfloat xmax, jfloat ymax, jfloat zmax,
                                                                           jint type) {
  domain(handle)->setDomain(xmin, ymin, zmin, xmax, ymax, zmax, boxType(type));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_setDomainImpl2(JNIEnv* env, jobject, jlong handle,
                                                                           jfloatArray box, jint type) {
  ArrayHelper helper(env);
  domain(handle)->setDomain(valueIn<SbBox2f>(helper, box, kReadWrite), boxType(type));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_setDomainImpl3(JNIEnv* env, jobject, jlong handle,
                                                                           jfloatArray box, jint type) {
  ArrayHelper helper(env);
  domain(handle)->setDomain(valueIn<SbBox3f>(helper, box, kReadWrite), boxType(type));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_get2DDomainImpl(JNIEnv* env, jobject, jlong handle,
                                                                            jfloatArray box) {
  ArrayHelper helper(env);
  domain(handle)->getDomain(valueIn<SbBox2f>(helper, box, kReadWrite));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_get3DDomainImpl(JNIEnv* env, jobject, jlong handle,
                                                                            jfloatArray box) {
  ArrayHelper helper(env);
  domain(handle)->getDomain(valueIn<SbBox3f>(helper, box, kReadWrite));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_getMatrixImpl(JNIEnv* env, jobject, jlong handle,
                                                                          jfloatArray matrix) {
  ArrayHelper helper(env);
  SbMatrix& target = valueIn<SbMatrix>(helper, matrix, kReadWrite);  // converted before the call
  target = domain(handle)->getMatrix();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbDomain_setTransformTypeImpl(JNIEnv*, jobject, jlong handle,
                                                                                 jint type) {
  domain(handle)->setTransformType(toEnum<PbDomain::TransformType>(type));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_getTransformTypeImpl(JNIEnv*, jobject, jlong handle) {
  return domain(handle)->getTransformType();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_getMatrixTransformImpl(JNIEnv*, jobject,
                                                                                    jlong handle) {
  return tavrel::toHandle(domain(handle)->getMatrixTransform());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDomain_getTransformImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::toHandle(domain(handle)->getTransform());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbDomain_equalsImpl(JNIEnv*, jobject, jlong handle,
                                                                           jlong other) {
  return tavrel::toJBoolean(*domain(handle) == *domain(other));
}

// PbDomain.TransformTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024TransformTypes_getTRANSFORM01Native(JNIEnv*,
                                                                                                     jclass) {
  return tavrel::enumValue(PbDomain::TRANSFORM01);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024TransformTypes_getSCALEXFIXEDNative(JNIEnv*,
                                                                                                     jclass) {
  return tavrel::enumValue(PbDomain::SCALEXFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024TransformTypes_getSCALEYFIXEDNative(JNIEnv*,
                                                                                                     jclass) {
  return tavrel::enumValue(PbDomain::SCALEYFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024TransformTypes_getSCALEZFIXEDNative(JNIEnv*,
                                                                                                     jclass) {
  return tavrel::enumValue(PbDomain::SCALEZFIXED);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024TransformTypes_getSCALEMAXXYZFIXEDNative(JNIEnv*,
                                                                                                          jclass) {
  return tavrel::enumValue(PbDomain::SCALEMAXXYZFIXED);
}

// PbDomain.BoundingBoxTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024BoundingBoxTypes_getASISNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbDomain::ASIS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024BoundingBoxTypes_getMINBOUNDINGCUBENative(JNIEnv*,
                                                                                                           jclass) {
  return tavrel::enumValue(PbDomain::MINBOUNDINGCUBE);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDomain_00024BoundingBoxTypes_getMAXBOUNDEDCUBENative(JNIEnv*,
                                                                                                          jclass) {
  return tavrel::enumValue(PbDomain::MAXBOUNDEDCUBE);
}

}  // extern "C"
