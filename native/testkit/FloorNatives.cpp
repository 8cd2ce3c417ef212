// com.kestrum.tavrel.benchmarks.Floors: the least that each hot path of the
// binding could cost, measured beside it by the benchmarks (java/benchmarks).
// Each floor makes exactly the JNI calls its path cannot do without, and
// nothing else. Also the plain C accessor that a binding generated for the
// foreign-function API of newer JDKs would call.

#include <jni.h>

#include <Tavrel/PbMesh.h>
#include <Tavrel/PoMeshProbePoint.h>

#include "common/Handles.h"

namespace {
// Identifiers of the Java methods that the upcall floors call, looked up once
// by Floors.init (the Java class keeps its targets final, so each upcall lands
// on the one method).
jmethodID objectTarget = nullptr;   // void accept(Object)
jmethodID booleanTarget = nullptr;  // boolean accept(int, float)
}  // namespace

extern "C" {

// Accessor over the toolkit getter, for a downcall through java.lang.foreign:
// the mesh's node count.
__attribute__((visibility("default"))) int tavrel_bench_getNumNodes(const void* mesh) {
  return static_cast<const PbMesh*>(mesh)->getNumNodes();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_init(JNIEnv* env, jclass, jclass objectSink,
                                                                      jclass booleanSink) {
  objectTarget = env->GetMethodID(objectSink, "accept", "(Ljava/lang/Object;)V");
  booleanTarget = env->GetMethodID(booleanSink, "accept", "(IF)Z");
}

// The shape of every thin getter: an instance native taking a handle, with an
// empty body.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_emptyGetter(JNIEnv*, jobject, jlong) { return 0; }

// The per-vector JNI calls of the vector-object conversion and nothing else:
// the class and field once, then per vector the element, its float[] field,
// the floats, their release without copy back, and the two local references
// deleted. Returns the sum of the components, so that the reads are used.
JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_vectorLoop(JNIEnv* env, jclass,
                                                                             jobjectArray vectors) {
  jsize n = env->GetArrayLength(vectors);
  jobject first = env->GetObjectArrayElement(vectors, 0);
  jclass cls = env->GetObjectClass(first);
  jfieldID field = env->GetFieldID(cls, "array", "[F");
  env->DeleteLocalRef(cls);
  env->DeleteLocalRef(first);
  float sum = 0;
  for (jsize i = 0; i < n; ++i) {
    jobject element = env->GetObjectArrayElement(vectors, i);
    jfloatArray floats = static_cast<jfloatArray>(env->GetObjectField(element, field));
    jfloat* components = env->GetFloatArrayElements(floats, nullptr);
    sum += components[0] + components[1] + components[2];
    env->ReleaseFloatArrayElements(floats, components, JNI_ABORT);
    env->DeleteLocalRef(floats);
    env->DeleteLocalRef(element);
  }
  return sum;
}

// times bare upcalls through a cached identifier, each passing one object.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_objectUpcalls(JNIEnv* env, jclass, jobject sink,
                                                                              jobject argument, jint times) {
  for (jint i = 0; i < times; ++i) env->CallVoidMethod(sink, objectTarget, argument);
}

// times bare upcalls through a cached identifier, each passing an int and a
// float and returning a boolean (the cell filter's shape); returns the number
// of true answers.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_booleanUpcalls(JNIEnv* env, jclass, jobject sink,
                                                                               jint times) {
  jint accepted = 0;
  for (jint i = 0; i < times; ++i)
    accepted += env->CallBooleanMethod(sink, booleanTarget, i, static_cast<jdouble>(0.5f)) != JNI_FALSE;
  return accepted;
}

// times motion events of the probe with the cell (0 for none), as the probe
// raises them during a move.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_raiseMotions(JNIEnv*, jclass, jlong probe,
                                                                             jlong cell, jint times) {
  PoMeshProbePoint* node = tavrel::fromHandle<PoMeshProbePoint>(probe);
  const PbCell* at = tavrel::fromHandle<const PbCell>(cell);
  for (jint i = 0; i < times; ++i) node->raiseEvent(PoMeshProbePoint::MOTION, at);
}

}  // extern "C"
