// com.kestrum.tavrel.testkit.Representations: what the representation nodes
// keep in plain members, the cells they selected, node-kit catalogs, and node
// references.

#include <jni.h>

#include <Corvel/SoBaseKit.h>
#include <Tavrel/PoMesh.h>
#include <Tavrel/PoMeshCrossSection.h>


#include "common/Handles.h"
#include "TestkitSupport.h"

extern "C" {

// The cross-section method member of a PoMeshCrossSection.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Representations_crossSectionMethod(JNIEnv*, jclass,
                                                                                        jlong node) {
  return static_cast<jint>(tavrel::fromHandle<PoMeshCrossSection>(node)->getCrossSectionMethod());
}

// The cells a representation accepted in its last drawing or callback traversal.
JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_testkit_Representations_selectedCells(JNIEnv* env, jclass,
                                                                                       jlong node) {
  const std::vector<int>& cells = tavrel::fromHandle<PoMesh>(node)->selectedCells();
  jintArray result = env->NewIntArray(static_cast<jsize>(cells.size()));
  if (result != nullptr) env->SetIntArrayRegion(result, 0, static_cast<jsize>(cells.size()), cells.data());
  return result;
}

// The type name of the class that owns a node-kit catalog.
JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Representations_catalogOwner(JNIEnv* env, jclass,
                                                                                     jlong catalog) {
  return env->NewStringUTF(tavrel::fromHandle<const SoNodekitCatalog>(catalog)->getOwner().getName().getString());
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Representations_catalogParts(JNIEnv* env, jclass,
                                                                                         jlong catalog) {
  return testkit::toJavaStrings(env, tavrel::fromHandle<const SoNodekitCatalog>(catalog)->partNames());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Representations_ref(JNIEnv*, jclass, jlong node) {
  tavrel::fromHandle<SoNode>(node)->ref();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Representations_unref(JNIEnv*, jclass, jlong node) {
  tavrel::fromHandle<SoNode>(node)->unref();
}

}  // extern "C"
