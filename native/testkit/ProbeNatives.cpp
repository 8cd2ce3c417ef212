// com.kestrum.tavrel.testkit.Probes: raising the probe point's events, on the
// calling thread or on a native thread, and reading its registrations.

#include <jni.h>

#include <Tavrel/PoMeshProbePoint.h>

#include <thread>
#include <vector>

#include "common/Handles.h"

namespace {
struct EventList {
  std::vector<jint> events;
  std::vector<jlong> cells;
};

// Copied out of the Java arrays before any event, so that nothing touches JNI
// while a listener's exception is pending.
EventList readEvents(JNIEnv* env, jintArray events, jlongArray cells) {
  EventList list;
  list.events.resize(static_cast<std::size_t>(env->GetArrayLength(events)));
  list.cells.resize(list.events.size());
  env->GetIntArrayRegion(events, 0, static_cast<jsize>(list.events.size()), list.events.data());
  env->GetLongArrayRegion(cells, 0, static_cast<jsize>(list.cells.size()), list.cells.data());
  return list;
}

void raiseAll(PoMeshProbePoint* probe, const EventList& list) {
  for (std::size_t i = 0; i < list.events.size(); ++i) {
    probe->raiseEvent(static_cast<PoMeshProbePoint::Event>(list.events[i]),
                      tavrel::fromHandle<const PbCell>(list.cells[i]));
  }
}
}  // namespace

extern "C" {

// Raises events[i] with cells[i] (0 for no cell), one after the other, in this
// one native call.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Probes_raise(JNIEnv* env, jclass, jlong probe,
                                                                   jintArray events, jlongArray cells) {
  raiseAll(tavrel::fromHandle<PoMeshProbePoint>(probe), readEvents(env, events, cells));
}

// The same on a new native thread, which the bridges attach to the JVM; returns
// when that thread has ended.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Probes_raiseOnNativeThread(JNIEnv* env, jclass, jlong probe,
                                                                                 jintArray events,
                                                                                 jlongArray cells) {
  EventList list = readEvents(env, events, cells);
  std::thread thread([probe, &list] { raiseAll(tavrel::fromHandle<PoMeshProbePoint>(probe), list); });
  thread.join();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Probes_moveTo(JNIEnv*, jclass, jlong probe, jfloat x, jfloat y,
                                                                    jfloat z, jlong cell, jlong cellIndex) {
  tavrel::fromHandle<PoMeshProbePoint>(probe)->moveTo(SbVec3f(x, y, z), tavrel::fromHandle<const PbCell>(cell),
                                                      static_cast<long>(cellIndex));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Probes_hasCallbackFunction(JNIEnv*, jclass, jlong probe,
                                                                                     jint event) {
  PoMeshProbePoint* node = tavrel::fromHandle<PoMeshProbePoint>(probe);
  auto& callback = node->getCallback(static_cast<PoMeshProbePoint::Event>(event));
  return callback.function != nullptr ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Probes_callbackUserData(JNIEnv*, jclass, jlong probe,
                                                                              jint event) {
  PoMeshProbePoint* node = tavrel::fromHandle<PoMeshProbePoint>(probe);
  auto& callback = node->getCallback(static_cast<PoMeshProbePoint::Event>(event));
  return tavrel::toHandle(callback.userData);
}

}  // extern "C"
