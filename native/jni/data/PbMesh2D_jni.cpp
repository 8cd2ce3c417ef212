// com.kestrum.tavrel.data.PbMesh2D: two-dimensional vector sets, the 2D
// bounding box and the fault mesh; PbMesh2D$ExtrapolationMethods.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PbDefinedValue.h>
#include <Tavrel/PbMesh2D.h>

#include "common/ClassFamilies.h"
#include "common/DataSets.h"
#include "common/FloatLayoutedArrayTypeArrayHelper.h"
#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh2D_addVecsSetImpl(JNIEnv* env, jobject, jlong handle,
                                                                             jint set, jobjectArray vectors,
                                                                             jstring name) {
  tavrel::addVecsSet<SbVec2f>(env, fromHandle<PbMesh2D>(handle), set, vectors, name);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbMesh2D_get2DBoundingBoxImpl(JNIEnv* env, jobject, jlong handle,
                                                                                   jfloatArray out) {
  tavrel::writeOutput(env, out, fromHandle<PbMesh2D>(handle)->get2DBoundingBox());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbMesh2D_getFaultMeshImpl1(JNIEnv* env, jobject, jlong handle,
                                                                                 jint count, jintArray nodes,
                                                                                 jobjectArray vectors) {
  ArrayHelper helper(env);
  FloatLayoutedArrayTypeArrayHelper<SbVec3f> natives(env, vectors);
  const SbVec3f* faultVectors = natives.toNativeArray();
  const int* faultNodes = helper.toNativeArray(nodes, ArrayHelper::ReadOnly);
  PbDefinedValue definedValue;
  return tavrel::toHandle(fromHandle<PbMesh2D>(handle)->getFaultMesh(
      count, faultNodes, faultVectors, static_cast<PbMesh2D::ExtrapolationMethod>(0), definedValue));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh2D_00024ExtrapolationMethods_getUSEADJACENTDERIVSNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PbMesh2D::USE_ADJACENT_DERIVS);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_data_PbMesh2D_00024ExtrapolationMethods_getUSEADJACENTVALUESNative(
    JNIEnv*, jclass) {
  return tavrel::enumValue(PbMesh2D::USE_ADJACENT_VALUES);
}

}  // extern "C"
