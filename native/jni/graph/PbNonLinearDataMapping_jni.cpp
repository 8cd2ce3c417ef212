// com.kestrum.tavrel.graph.PbNonLinearDataMapping: its constructor function.

#include <jni.h>

#include <Tavrel/PbNonLinearDataMapping.h>

#include "common/Handles.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNonLinearDataMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbNonLinearDataMapping>();
}

}  // extern "C"
