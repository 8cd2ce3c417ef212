// com.kestrum.tavrel.data.PbWedgeCell: constructor functions of the wedge cell and its shape-function derivatives.

#include <jni.h>

#include <Tavrel/PbWedgeCell.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbWedgeCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbWedgeCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbWedgeCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbWedgeCell>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbWedgeCell_getDerivsImpl(JNIEnv* env, jobject, jlong handle,
                                                                   jfloatArray pcoord, jfloatArray derivs) {
  tavrel::derivatives<PbWedgeCell>(env, handle, pcoord, derivs);
}

}  // extern "C"
