// com.kestrum.tavrel.data.PbMesh: what every mesh offers (counts, data sets,
// coordinates, boxes, cells), and PbMesh$DataBindings.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbMesh.h>

#include "common/ClassFamilies.h"
#include "common/DataSets.h"
#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;
using tavrel::toHandle;

namespace {
PbMesh* mesh(jlong handle) { return fromHandle<PbMesh>(handle); }

// Number of values of a set with that binding: cells for 0, nodes otherwise.
int lengthFor(const PbMesh* m, int binding) { return binding == 0 ? m->getNumCells() : m->getNumNodes(); }
}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNumNodesImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getNumNodes();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNumCellsImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getNumCells();
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_isDataDuplicatedImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::toJBoolean(mesh(handle)->isDataDuplicated());
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getValuesBindingImpl(JNIEnv*, jobject, jlong handle,
                                                                                 jint set) {
  return mesh(handle)->getValuesBinding(set);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbMesh_getVolumeImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getVolume();
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_data_PbMesh_getAreaImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getArea();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbMesh_getCellImpl(JNIEnv*, jobject, jlong handle,
                                                                        jint cellIndex) {
  return toHandle(mesh(handle)->getCell(cellIndex));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNumValuesSetImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getNumValuesSet();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNumStringsSetImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getNumStringsSet();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNumVecsSetImpl(JNIEnv*, jobject, jlong handle) {
  return mesh(handle)->getNumVecsSet();
}

// --- data sets ---------------------------------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_addValuesSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                             jint set, jfloatArray values,
                                                                             jstring name) {
  tavrel::addValuesSet(env, mesh(handle), set, values, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_addValuesSetImpl1(JNIEnv* env, jobject, jlong handle,
                                                                              jint set, jfloatArray values,
                                                                              jint binding, jstring name) {
  tavrel::addValuesSet<PbMesh::DataBinding>(env, mesh(handle), set, values, binding, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_addVecsSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                           jint set, jobjectArray vectors,
                                                                           jstring name) {
  tavrel::addVecsSet<SbVec3f>(env, mesh(handle), set, vectors, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_addStringsSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                              jint set, jobjectArray strings,
                                                                              jstring name) {
  tavrel::addStringsSet(env, mesh(handle), set, strings, name);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PbMesh_getValuesSetNameImpl(JNIEnv* env, jobject, jlong handle,
                                                                                    jint set) {
  return tavrel::toJavaString(env, mesh(handle)->getValuesSetName(set));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PbMesh_getStringsSetNameImpl(JNIEnv* env, jobject,
                                                                                     jlong handle, jint set) {
  return tavrel::toJavaString(env, mesh(handle)->getStringsSetName(set));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_data_PbMesh_getVecsSetNameImpl(JNIEnv* env, jobject, jlong handle,
                                                                                  jint set) {
  return tavrel::toJavaString(env, mesh(handle)->getVecsSetName(set));
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_data_PbMesh_getValuesSetImpl(JNIEnv* env, jobject,
                                                                                    jlong handle, jint set) {
  PbMesh* m = mesh(handle);
  const float* values = m->getValuesSet(set);
  const int length = lengthFor(m, m->getValuesBinding(set));
  return ArrayHelper::fromNativeArray(env, values, static_cast<unsigned long>(length));
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_data_PbMesh_getDirectValuesSetImpl(JNIEnv* env, jobject,
                                                                                      jlong handle, jint set) {
  PbMesh* m = mesh(handle);
  const int length = lengthFor(m, m->getValuesBinding(set));
  return tavrel::directBuffer(env, m->getValuesSet(set), 4 * static_cast<std::size_t>(length));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbMesh_getVecsSetImpl(JNIEnv*, jobject, jlong handle, jint set) {
  return toHandle(mesh(handle)->getVecsSet(set));
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_data_PbMesh_getDirectVecsSetImpl(JNIEnv* env, jobject,
                                                                                    jlong handle, jint set) {
  PbMesh* m = mesh(handle);
  const int length = m->getNumNodes();
  return tavrel::directBuffer(env, m->getVecsSet(set), 12 * static_cast<std::size_t>(length));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeValuesSetImpl(JNIEnv*, jobject, jlong handle,
                                                                                    jint set) {
  return tavrel::toJBoolean(mesh(handle)->removeValuesSet(set));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeStringsSetImpl(JNIEnv*, jobject, jlong handle,
                                                                                     jint set) {
  return tavrel::toJBoolean(mesh(handle)->removeStringsSet(set));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeVecsSetImpl(JNIEnv*, jobject, jlong handle,
                                                                                  jint set) {
  return tavrel::toJBoolean(mesh(handle)->removeVecsSet(set));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeAllValuesSetImpl(JNIEnv*, jobject, jlong handle) {
  mesh(handle)->removeAllValuesSet();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeAllStringsSetImpl(JNIEnv*, jobject, jlong handle) {
  mesh(handle)->removeAllStringsSet();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_removeAllVecsSetImpl(JNIEnv*, jobject, jlong handle) {
  mesh(handle)->removeAllVecsSet();
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_getMinValuesSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                                    jint set, jfloatArray out) {
  return tavrel::flagAndValue<PbMesh>(env, mesh(handle), &PbMesh::getMinValuesSet, set, out);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_getMaxValuesSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                                    jint set, jfloatArray out) {
  return tavrel::flagAndValue<PbMesh>(env, mesh(handle), &PbMesh::getMaxValuesSet, set, out);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_getMinVecsSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                                  jint set, jfloatArray out) {
  return tavrel::flagAndValue<PbMesh>(env, mesh(handle), &PbMesh::getMinVecsSet, set, out);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_data_PbMesh_getMaxVecsSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                                  jint set, jfloatArray out) {
  return tavrel::flagAndValue<PbMesh>(env, mesh(handle), &PbMesh::getMaxVecsSet, set, out);
}

// --- geometry ------------------------------------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_setCoordinatesImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jfloatArray x, jfloatArray y,
                                                                               jfloatArray z) {
  PbMesh* m = mesh(handle);
  tavrel::withInputs(
      env, [m](const float* a, const float* b, const float* c) { m->setCoordinates(a, b, c); }, x, y, z);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_getCoordinatesImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jobjectArray xOut, jobjectArray yOut,
                                                                               jobjectArray zOut) {
  const float *x = nullptr, *y = nullptr, *z = nullptr;
  int nx = 0, ny = 0, nz = 0;
  mesh(handle)->getCoordinates(x, y, z, nx, ny, nz);
  tavrel::storeFloatBuffers(env, {xOut, yOut, zOut}, {x, y, z}, {nx, ny, nz});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_getNodeCoordImpl(JNIEnv* env, jobject, jlong handle,
                                                                             jint nodeIndex, jfloatArray out) {
  tavrel::writeOutput(env, out, mesh(handle)->getNodeCoord(nodeIndex));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_getBoundingBoxImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jfloatArray out) {
  tavrel::writeOutput(env, out, mesh(handle)->getBoundingBox());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_getSmallestCellBoxImpl(JNIEnv* env, jobject, jlong handle,
                                                                                   jintArray cellOut,
                                                                                   jfloatArray boxOut) {
  tavrel::cellBox<PbMesh>(env, mesh(handle), &PbMesh::getSmallestCellBox, cellOut, boxOut);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh_getBiggestCellBoxImpl(JNIEnv* env, jobject, jlong handle,
                                                                                  jintArray cellOut,
                                                                                  jfloatArray boxOut) {
  tavrel::cellBox<PbMesh>(env, mesh(handle), &PbMesh::getBiggestCellBox, cellOut, boxOut);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbMesh_findContainingCellImpl(JNIEnv* env, jobject, jlong handle,
                                                                                    jfloatArray point,
                                                                                    jfloat tolerance,
                                                                                    jfloatArray pcoordOut,
                                                                                    jlong adjacentCell) {
  PbMesh* m = mesh(handle);
  const PbCell* adjacent = fromHandle<const PbCell>(adjacentCell);
  return toHandle(tavrel::locateWith(env, point, pcoordOut, [&](const SbVec3f& p, SbVec3f& pcoord) {
    return m->findContainingCell(p, tolerance, pcoord, adjacent);
  }));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbMesh_findContainingCellImpl1(JNIEnv* env, jobject, jlong handle,
                                                                                     jfloatArray point,
                                                                                     jfloat tolerance,
                                                                                     jfloatArray pcoordOut) {
  PbMesh* m = mesh(handle);
  return toHandle(tavrel::locateWith(env, point, pcoordOut, [&](const SbVec3f& p, SbVec3f& pcoord) {
    return m->findContainingCell(p, tolerance, pcoord);
  }));
}

// --- PbMesh$DataBindings -----------------------------------------------------------

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_00024DataBindings_getPERCELLNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbMesh::PER_CELL);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh_00024DataBindings_getPERNODENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbMesh::PER_NODE);
}

}  // extern "C"
