// com.kestrum.tavrel.data.PbPixelCell: constructor functions of the pixel cell.

#include <jni.h>

#include <Tavrel/PbPixelCell.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPixelCell_ctorImpl(JNIEnv*, jclass, jlong mesh) {
  return tavrel::construct<PbPixelCell>(tavrel::fromHandle<const PbMesh>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_data_PbPixelCell_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbPixelCell>(other);
}

}  // extern "C"
