// com.kestrum.tavrel.testkit.Charts: the parts that a curve, histogram or
// legend of the toolkit stand-in made at its last build.

#include <jni.h>

#include <Tavrel/PoBase.h>
#include <Tavrel/PoBuiltParts.h>

#include <cstdint>

#include "TestkitSupport.h"

extern "C" {

// The parts of the node's last build; null for a node that lists none.
JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Charts_builtParts(JNIEnv* env, jclass, jlong node) {
  auto* base = reinterpret_cast<PoBase*>(static_cast<std::intptr_t>(node));
  const auto* parts = dynamic_cast<const PoBuiltParts*>(base);
  return parts == nullptr ? nullptr : testkit::toJavaStrings(env, parts->getBuiltParts());
}

}  // extern "C"
