// com.kestrum.tavrel.data.PbPyramidCell: constructor functions of the pyramid cell and its shape-function derivatives.

#include <jni.h>

#include <Tavrel/PbPyramidCell.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPyramidCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbPyramidCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPyramidCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbPyramidCell>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbPyramidCell_getDerivsImpl(JNIEnv* env, jobject, jlong handle,
                                                                   jfloatArray pcoord, jfloatArray derivs) {
  tavrel::derivatives<PbPyramidCell>(env, handle, pcoord, derivs);
}

}  // extern "C"
