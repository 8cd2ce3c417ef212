// com.kestrum.tavrel.data.PbGrid3D: dimensions, node coordinates by
// (i, j, k), index conversions and geometry replacement of every 3D grid.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbGrid3D.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid3D_getNodeCoordImpl(JNIEnv* env, jobject, jlong handle,
                                                                               jint i, jint j, jint k,
                                                                               jfloatArray out) {
  tavrel::writeOutput(env, out, fromHandle<PbGrid3D>(handle)->getNodeCoord(i, j, k));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid3D_getDimImpl(JNIEnv* env, jobject, jlong handle,
                                                                         jintArray out1, jintArray out2,
                                                                         jintArray out3) {
  int numX = 0, numY = 0, numZ = 0;
  fromHandle<PbGrid3D>(handle)->getDim(numX, numY, numZ);
  tavrel::writeOutput(env, out1, numX);
  tavrel::writeOutput(env, out2, numY);
  tavrel::writeOutput(env, out3, numZ);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid3D_getNodeIndicesImpl(JNIEnv* env, jobject, jlong handle,
                                                                                 jint n, jintArray iOut,
                                                                                 jintArray jOut, jintArray kOut) {
  int numX = 0, numY = 0, numZ = 0;
  fromHandle<PbGrid3D>(handle)->getDim(numX, numY, numZ);
  tavrel::gridIndices<2>(env, n, {numY, numZ}, {iOut, jOut, kOut});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid3D_getCellIndicesImpl(JNIEnv* env, jobject, jlong handle,
                                                                                 jint n, jintArray iOut,
                                                                                 jintArray jOut, jintArray kOut) {
  int numX = 0, numY = 0, numZ = 0;
  fromHandle<PbGrid3D>(handle)->getDim(numX, numY, numZ);
  tavrel::gridIndices<2>(env, n, {numY - 1, numZ - 1}, {iOut, jOut, kOut});
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbGrid3D_setGeometryImpl(JNIEnv* env, jobject, jlong handle,
                                                                              jint numX, jint numY, jint numZ,
                                                                              jfloatArray x, jfloatArray y,
                                                                              jfloatArray z) {
  PbGrid3D* grid = fromHandle<PbGrid3D>(handle);
  tavrel::withInputs(
      env,
      [grid](int nx, int ny, int nz, const float* a, const float* b, const float* c) {
        grid->setGeometry(nx, ny, nz, a, b, c);
      },
      numX, numY, numZ, x, y, z);
}

}  // extern "C"
