// com.kestrum.tavrel.data.PbQuadrangleCell: constructor functions of the quadrangle cell and its shape-function
// derivatives.

#include <jni.h>

#include <Tavrel/PbQuadrangleCell.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbQuadrangleCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbQuadrangleCell>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbQuadrangleCell_getDerivsImpl(JNIEnv* env, jobject, jlong handle,
                                                                   jfloatArray pcoord, jfloatArray derivs) {
  tavrel::derivatives<PbQuadrangleCell>(env, handle, pcoord, derivs);
}

}  // extern "C"
