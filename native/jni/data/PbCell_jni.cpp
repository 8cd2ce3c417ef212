// com.kestrum.tavrel.data.PbCell: what every cell offers (nodes, measures,
// point location, interpolation).

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbCell.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

using tavrel::fromHandle;

namespace {
const PbCell* cell(jlong handle) { return fromHandle<const PbCell>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_getNumFacetsImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getNumFacets();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_getNumEdgesImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getNumEdges();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_getNumNodesImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getNumNodes();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_getIndexImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getIndex();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_getNodeIndexImpl(JNIEnv*, jobject, jlong handle, jint i) {
  return cell(handle)->getNodeIndex(i);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getNodeCoordImpl(JNIEnv* env, jobject, jlong handle, jint i,
                                                                             jfloatArray out) {
  tavrel::writeOutput(env, out, cell(handle)->getNodeCoord(i));
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbCell_getLongestEdgeLengthImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getLongestEdgeLength();
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbCell_getVolumeImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getVolume();
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbCell_getAreaImpl(JNIEnv*, jobject, jlong handle) {
  return cell(handle)->getArea();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getBoundingBoxImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jfloatArray out) {
  tavrel::writeOutput(env, out, cell(handle)->getBoundingBox());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getBoundsImpl(JNIEnv* env, jobject, jlong handle,
                                                                          jfloatArray out0, jfloatArray out1,
                                                                          jfloatArray out2, jfloatArray out3,
                                                                          jfloatArray out4, jfloatArray out5) {
  ArrayHelper h0(env), h1(env), h2(env), h3(env), h4(env), h5(env);
  float b[6] = {0, 0, 0, 0, 0, 0};
  cell(handle)->getBounds(b[0], b[1], b[2], b[3], b[4], b[5]);
  h0.toNativeArray(out0, ArrayHelper::ReadWrite)[0] = b[0];
  h1.toNativeArray(out1, ArrayHelper::ReadWrite)[0] = b[1];
  h2.toNativeArray(out2, ArrayHelper::ReadWrite)[0] = b[2];
  h3.toNativeArray(out3, ArrayHelper::ReadWrite)[0] = b[3];
  h4.toNativeArray(out4, ArrayHelper::ReadWrite)[0] = b[4];
  h5.toNativeArray(out5, ArrayHelper::ReadWrite)[0] = b[5];
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getCenterImpl(JNIEnv* env, jobject, jlong handle,
                                                                          jfloatArray out) {
  tavrel::writeOutput(env, out, cell(handle)->getCenter());
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbCell_locatePointImpl(JNIEnv* env, jobject, jlong handle,
                                                                           jfloatArray point, jfloat tolerance,
                                                                           jfloatArray pcoordOut) {
  const PbCell* c = cell(handle);
  return tavrel::locateWith(env, point, pcoordOut, [&](const SbVec3f& p, SbVec3f& pcoord) {
    return c->locatePoint(p, tolerance, pcoord);
  });
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbCell_getValueImpl(JNIEnv* env, jobject, jlong handle,
                                                                          jfloatArray pcoord, jfloatArray values) {
  ArrayHelper helper(env);
  const SbVec3f& p = *reinterpret_cast<const SbVec3f*>(helper.toNativeArray(pcoord, ArrayHelper::ReadWrite));
  return cell(handle)->getValue(p, static_cast<const float*>(helper.toNativeArray(values, ArrayHelper::ReadOnly)));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getValueImpl1(JNIEnv* env, jobject, jlong handle,
                                                                         jfloatArray pcoord, jobjectArray vectors,
                                                                         jfloatArray out) {
  const PbCell* c = cell(handle);
  tavrel::vectorResult(env, pcoord, ArrayHelper::ReadWrite, vectors, out, [c](const float* p, const SbVec3f* v) {
    return c->getValue(*reinterpret_cast<const SbVec3f*>(p), v);
  });
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbCell_getValueImpl2(JNIEnv* env, jobject, jlong handle,
                                                                           jfloatArray pcoord, jfloatArray values) {
  const PbCell* c = cell(handle);
  return tavrel::withInputs(env, [c](const float* p, const float* v) { return c->getValue(p, v); }, pcoord, values);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbCell_getValueImpl3(JNIEnv* env, jobject, jlong handle,
                                                                         jfloatArray pcoord, jobjectArray vectors,
                                                                         jfloatArray out) {
  const PbCell* c = cell(handle);
  tavrel::vectorResult(env, pcoord, ArrayHelper::ReadOnly, vectors, out,
                       [c](const float* p, const SbVec3f* v) { return c->getValue(p, v); });
}

}  // extern "C"
