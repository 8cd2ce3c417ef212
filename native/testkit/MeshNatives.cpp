// com.kestrum.tavrel.testkit.MeshKit: reaches into the toolkit's meshes, as the
// toolkit itself would (to see that direct buffers alias the mesh's memory).

#include <jni.h>

#include <Tavrel/PbMesh.h>

#include <cstdint>

namespace {
PbMesh* mesh(jlong handle) { return reinterpret_cast<PbMesh*>(static_cast<std::intptr_t>(handle)); }
}  // namespace

extern "C" {

// Changes element index of a values set in the mesh's own memory.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_MeshKit_setValue(JNIEnv*, jclass, jlong handle, jint set,
                                                                        jint index, jfloat value) {
  const_cast<float*>(mesh(handle)->getValuesSet(set))[index] = value;
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_testkit_MeshKit_valueAt(JNIEnv*, jclass, jlong handle, jint set,
                                                                         jint index) {
  return mesh(handle)->getValuesSet(set)[index];
}

// Component c of vector index of a vecs set.
JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_testkit_MeshKit_vecAt(JNIEnv*, jclass, jlong handle, jint set,
                                                                       jint index, jint c) {
  return mesh(handle)->getVecsSet(set)[index][c];
}

}  // extern "C"
