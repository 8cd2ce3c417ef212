// com.kestrum.tavrel.data.PbHexahedronCell: constructor functions of the hexahedron cell and its shape-function
// derivatives.

#include <jni.h>

#include <Tavrel/PbHexahedronCell.h>

#include "common/Handles.h"
#include "common/ToolkitCalls.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbHexahedronCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbHexahedronCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbHexahedronCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbHexahedronCell>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_data_PbHexahedronCell_getDerivsImpl(JNIEnv* env, jobject, jlong handle,
                                                                   jfloatArray pcoord, jfloatArray derivs) {
  tavrel::derivatives<PbHexahedronCell>(env, handle, pcoord, derivs);
}

}  // extern "C"
