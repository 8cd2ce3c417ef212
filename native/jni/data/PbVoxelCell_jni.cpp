// com.kestrum.tavrel.data.PbVoxelCell: constructor functions of the voxel cell.

#include <jni.h>

#include <Tavrel/PbVoxelCell.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbVoxelCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbVoxelCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbVoxelCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbVoxelCell>(other);
}

}  // extern "C"
