// com.kestrum.tavrel.data.PbGrid2D: dimensions, node coordinates by (i, j),
// index conversions and geometry replacement of every 2D grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbGrid2D.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_getNodeCoordImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jint i, jint j, jfloatArray out) {
  tavrel::writeOutput(env, out, fromHandle<PbGrid2D>(handle)->getNodeCoord(i, j));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_getDimImpl(JNIEnv* env, jobject, jlong handle,
                                                                         jintArray out1, jintArray out2) {
  int numX = 0, numY = 0;
  fromHandle<PbGrid2D>(handle)->getDim(numX, numY);
  tavrel::writeOutput(env, out1, numX);
  tavrel::writeOutput(env, out2, numY);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_getNodeIndicesImpl(JNIEnv* env, jobject, jlong handle,
                                                                                 jint n, jintArray iOut,
                                                                                 jintArray jOut) {
  int numX = 0, numY = 0;
  fromHandle<PbGrid2D>(handle)->getDim(numX, numY);
  tavrel::gridIndices<1>(env, n, {numY}, {iOut, jOut});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_getCellIndicesImpl(JNIEnv* env, jobject, jlong handle,
                                                                                 jint n, jintArray iOut,
                                                                                 jintArray jOut) {
  int numX = 0, numY = 0;
  fromHandle<PbGrid2D>(handle)->getDim(numX, numY);
  tavrel::gridIndices<1>(env, n, {numY - 1}, {iOut, jOut});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
                                                                              jint numX, jint numY, jfloatArray x,
                                                                              jfloatArray y) {
  PbGrid2D* grid = fromHandle<PbGrid2D>(handle);
  tavrel::withInputs(
      env, [grid](int nx, int ny, const float* a, const float* b) { grid->setGeometry(nx, ny, a, b); }, numX, numY, x,
      y);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid2D_setGeometryImpl1(JNIEnv* env, jobject, jlong handle,
                                                                               jint numX, jint numY, jfloatArray x,
                                                                               jfloatArray y, jfloatArray z) {
  PbGrid2D* grid = fromHandle<PbGrid2D>(handle);
  tavrel::withInputs(
      env, [grid](int nx, int ny, const float* a, const float* b, const float* c) { grid->setGeometry(nx, ny, a, b,
          c); },
      numX, numY, x, y, z);
}

}  // extern "C"
