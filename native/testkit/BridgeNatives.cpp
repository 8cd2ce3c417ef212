// com.kestrum.tavrel.testkit.Bridges: raising a rebuild event on a rebuild
// bridge, as a graph node does before and after it rebuilds itself.
//
// The product exports nothing but its JNI functions, so this library carries
// its own build of the rebuild bridge (callbacks/PoRebuildCallback.cpp, see
// CMakeLists.txt); it runs on bridges that the product's constructor function
// made, which have the same layout.

#include <jni.h>

#include <cstdint>

#include "callbacks/PoRebuildCallback.h"

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Bridges_raiseRebuild(JNIEnv*, jclass, jlong bridge,
                                                                           jlong node) {
  PoRebuildCallback::RealCallback(reinterpret_cast<void*>(static_cast<std::intptr_t>(bridge)),
                                  reinterpret_cast<PoBase*>(static_cast<std::intptr_t>(node)));
}

// count rebuild events in this one native call, as a node that rebuilds before
// and after.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Bridges_raiseRebuilds(JNIEnv*, jclass, jlong bridge,
                                                                            jlong node, jint count) {
  for (jint i = 0; i < count; ++i)
    PoRebuildCallback::RealCallback(reinterpret_cast<void*>(static_cast<std::intptr_t>(bridge)),
                                    reinterpret_cast<PoBase*>(static_cast<std::intptr_t>(node)));
}

}  // extern "C"
