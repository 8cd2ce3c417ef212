// com.kestrum.tavrel.data.PbTetrahedronCell: constructor functions of the tetrahedron cell.

#include <jni.h>

#include <Tavrel/PbTetrahedronCell.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbTetrahedronCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbTetrahedronCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbTetrahedronCell>(other);
}

}  // extern "C"
