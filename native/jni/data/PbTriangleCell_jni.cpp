// com.kestrum.tavrel.data.PbTriangleCell: constructor functions of the triangle cell.

#include <jni.h>

#include <Tavrel/PbTriangleCell.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbTriangleCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTriangleCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbTriangleCell>(other);
}

}  // extern "C"
