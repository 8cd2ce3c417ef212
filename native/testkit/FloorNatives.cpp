// com.kestrum.tavrel.benchmarks.Floors: the least that each hot path of the
// binding could cost, measured beside it by the benchmarks (java/benchmarks).
// Each floor makes exactly the JNI calls its path cannot do without, and
// nothing else. Also the plain C accessor that a binding generated for the
// foreign-function API of newer JDKs would call.

#include <jni.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PoBase.h>
#include <Tavrel/PoCurve.h>
#include <Tavrel/PoMeshProbePoint.h>
#include <Tavrel/PoMultipleHistogram.h>
#include <Tavrel/PoPieChart2D.h>
#include <Tavrel/PoValuedMarkerField.h>

#include <string>
#include <vector>

#include "common/Handles.h"

namespace {
// Identifiers of the Java methods that the upcall floors call, looked up once
// by Floors.init (the Java class keeps its targets final, so each upcall lands
// on the one method).
jmethodID objectTarget = nullptr;   // void accept(Object)
jmethodID booleanTarget = nullptr;  // boolean accept(int, float)

// The per-vector JNI calls of the vector-object conversion: the class and
// field once, then per vector the element, its float[] field, the floats
// (handed to use), their release without copy back, and the two local
// references deleted. n is the array's length (the caller reads it, once);
// nothing for an empty array.
template <class Use>
void forEachVector(JNIEnv* env, jobjectArray vectors, jsize n, Use use) {
  if (n == 0) return;
  jobject first = env->GetObjectArrayElement(vectors, 0);
  jclass cls = env->GetObjectClass(first);
  jfieldID field = env->GetFieldID(cls, "array", "[F");
  env->DeleteLocalRef(cls);
  env->DeleteLocalRef(first);
  for (jsize i = 0; i < n; ++i) {
    jobject element = env->GetObjectArrayElement(vectors, i);
    jfloatArray floats = static_cast<jfloatArray>(env->GetObjectField(element, field));
    jfloat* components = env->GetFloatArrayElements(floats, nullptr);
    use(static_cast<const jfloat*>(components));
    env->ReleaseFloatArrayElements(floats, components, JNI_ABORT);
    env->DeleteLocalRef(floats);
    env->DeleteLocalRef(element);
  }
}
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

// The same shape calling the toolkit's accessor on the mesh at the handle, and
// nothing else: what a thin getter costs without its Java side.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_toolkitGetter(JNIEnv*, jobject, jlong mesh) {
  return tavrel::fromHandle<const PbMesh>(mesh)->getNumNodes();
}

// The per-vector JNI calls of the vector-object conversion and nothing else:
// the class and field once, then per vector the element, its float[] field,
// the floats, their release without copy back, and the two local references
// deleted. Returns the sum of the components, so that the reads are used.
JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_vectorLoop(JNIEnv* env, jclass,
                                                                             jobjectArray vectors) {
  float sum = 0;
  forEachVector(env, vectors, env->GetArrayLength(vectors),
                [&sum](const jfloat* c) { sum += c[0] + c[1] + c[2]; });
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

// The JNI calls that a forwarded call of a Java node's operation with one
// argument makes around its upcall, with none of the lookups between them
// (docs/jni-sequences.md): per call the environment, the pending-
// exception check, local references to the weakly held peer and to the weakly
// held argument (a registered peer), the argument's class check, the upcall,
// the exception check and the two deletions.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_forwardedSequences(JNIEnv* env, jclass,
                                                                                   jobject sink, jobject argument,
                                                                                   jclass argumentClass,
                                                                                   jint times) {
  JavaVM* vm = nullptr;
  env->GetJavaVM(&vm);
  jweak peerRef = env->NewWeakGlobalRef(sink);
  jweak argumentRef = env->NewWeakGlobalRef(argument);
  for (jint i = 0; i < times; ++i) {
    JNIEnv* e = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    jobject peer = e->NewLocalRef(peerRef);
    jobject arg = e->NewLocalRef(argumentRef);
    if (e->IsInstanceOf(arg, argumentClass)) e->CallVoidMethod(peer, objectTarget, arg);
    jthrowable thrown = e->ExceptionOccurred();
    e->DeleteLocalRef(arg);
    e->DeleteLocalRef(peer);
    if (thrown != nullptr) break;
  }
  env->DeleteWeakGlobalRef(argumentRef);
  env->DeleteWeakGlobalRef(peerRef);
}

// The same for the cell filter's boolean upcall from two primitives: the
// environment, the pending-exception check, a local reference to the weakly
// held peer, the upcall, the exception check and the deletion. Returns the
// number of true answers.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_filterSequences(JNIEnv* env, jclass, jobject sink,
                                                                                jint times) {
  JavaVM* vm = nullptr;
  env->GetJavaVM(&vm);
  jweak peerRef = env->NewWeakGlobalRef(sink);
  jint accepted = 0;
  for (jint i = 0; i < times; ++i) {
    JNIEnv* e = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    jobject peer = e->NewLocalRef(peerRef);
    accepted += e->CallBooleanMethod(peer, booleanTarget, i, static_cast<jdouble>(0.5f)) != JNI_FALSE;
    jthrowable thrown = e->ExceptionOccurred();
    e->DeleteLocalRef(peer);
    if (thrown != nullptr) break;
  }
  env->DeleteWeakGlobalRef(peerRef);
  return accepted;
}

// The JNI calls of a callback bridge's event: the environment, the pending-
// exception check, a local reference to the weakly held callback object, its
// class and the method looked up by name, the upcall with the two handles, and
// the two deletions.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_bridgeSequences(JNIEnv* env, jclass, jobject sink,
                                                                                jlong probe, jlong cell,
                                                                                jint times) {
  JavaVM* vm = nullptr;
  env->GetJavaVM(&vm);
  jweak stored = env->NewWeakGlobalRef(sink);
  for (jint i = 0; i < times; ++i) {
    JNIEnv* e = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    jobject live = e->NewLocalRef(stored);
    jclass cls = e->GetObjectClass(stored);
    jmethodID method = e->GetMethodID(cls, "invokeNativ", "(JJ)V");
    if (method != nullptr) e->CallVoidMethod(stored, method, probe, cell);
    e->DeleteLocalRef(cls);
    e->DeleteLocalRef(live);
  }
  env->DeleteWeakGlobalRef(stored);
}

// times motion events of the probe with the cell (0 for none), as the probe
// raises them during a move.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_raiseMotions(JNIEnv*, jclass, jlong probe,
                                                                             jlong cell, jint times) {
  PoMeshProbePoint* node = tavrel::fromHandle<PoMeshProbePoint>(probe);
  const PbCell* at = tavrel::fromHandle<const PbCell>(cell);
  for (jint i = 0; i < times; ++i) node->raiseEvent(PoMeshProbePoint::MOTION, at);
}

// The JNI calls of a Java element's push and pop, as a traversal forwards them
// when a separator opens and closes (docs/jni-sequences.md), around
// the same upcalls, with none of the lookups: per pair, for push the
// environment, the pending-exception check, local references to the globally
// held peer and to the weakly held state (a registered peer) with its class
// check, the upcall passing the state, the exception check and the two
// deletions; for pop the same with the weakly held previous element as a
// second argument (its local reference, its class check, its deletion).
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_elementSequences(
    JNIEnv* env, jclass, jobject sink, jobject state, jclass stateClass, jobject element, jclass elementClass,
    jint times) {
  jclass sinkClass = env->GetObjectClass(sink);
  jmethodID popTarget = env->GetMethodID(sinkClass, "accept", "(Ljava/lang/Object;Ljava/lang/Object;)V");
  env->DeleteLocalRef(sinkClass);
  JavaVM* vm = nullptr;
  env->GetJavaVM(&vm);
  jobject peerRef = env->NewGlobalRef(sink);
  jweak stateRef = env->NewWeakGlobalRef(state);
  jweak elementRef = env->NewWeakGlobalRef(element);
  for (jint i = 0; i < times; ++i) {
    JNIEnv* e = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    jobject peer = e->NewLocalRef(peerRef);
    jobject s = e->NewLocalRef(stateRef);
    if (e->IsInstanceOf(s, stateClass)) e->CallVoidMethod(peer, objectTarget, s);
    jthrowable thrown = e->ExceptionOccurred();
    e->DeleteLocalRef(s);
    e->DeleteLocalRef(peer);
    if (thrown != nullptr) break;

    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    peer = e->NewLocalRef(peerRef);
    s = e->NewLocalRef(stateRef);
    bool ready = e->IsInstanceOf(s, stateClass);
    jobject previous = e->NewLocalRef(elementRef);
    ready = e->IsInstanceOf(previous, elementClass) && ready;
    if (ready) e->CallVoidMethod(peer, popTarget, s, previous);
    thrown = e->ExceptionOccurred();
    e->DeleteLocalRef(s);
    e->DeleteLocalRef(previous);
    e->DeleteLocalRef(peer);
    if (thrown != nullptr) break;
  }
  env->DeleteWeakGlobalRef(elementRef);
  env->DeleteWeakGlobalRef(stateRef);
  env->DeleteGlobalRef(peerRef);
}

// The JNI calls of a rebuild bridge's event: as bridgeSequences, with the
// rebuild bridge's method "(J)V" and the node's handle.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_rebuildBridgeSequences(JNIEnv* env, jclass,
                                                                                       jobject sink, jlong node,
                                                                                       jint times) {
  JavaVM* vm = nullptr;
  env->GetJavaVM(&vm);
  jweak stored = env->NewWeakGlobalRef(sink);
  for (jint i = 0; i < times; ++i) {
    JNIEnv* e = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&e), JNI_VERSION_1_8);
    if (e->ExceptionCheck()) break;
    jobject live = e->NewLocalRef(stored);
    jclass cls = e->GetObjectClass(stored);
    jmethodID method = e->GetMethodID(cls, "invokeNativ", "(J)V");
    if (method != nullptr) e->CallVoidMethod(stored, method, node);
    e->DeleteLocalRef(cls);
    e->DeleteLocalRef(live);
  }
  env->DeleteWeakGlobalRef(stored);
}

// times pre-rebuild events of the graph node, as its rebuild raises them (each
// callback added, in order), without the build.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_raiseRebuilds(JNIEnv*, jclass, jlong node,
                                                                              jint times) {
  PoBase* graphNode = tavrel::fromHandle<PoBase>(node);
  for (jint i = 0; i < times; ++i)
    for (const PoBase::Callback& c : graphNode->preRebuildCallbacks()) c.function(c.userData, graphNode);
}

// The bulk conversions' JNI calls and nothing else (the floors of the graph
// nodes built from Java arrays). The vector-object conversion with k
// components a vector: the class and field once, then per vector the
// element, its float[] field, the floats, their release without copy back,
// and the two deletions. Returns the sum of the components read.
JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_vectorComponents(JNIEnv* env, jclass,
                                                                                   jobjectArray vectors, jint k) {
  float sum = 0;
  forEachVector(env, vectors, env->GetArrayLength(vectors), [&sum, k](const jfloat* c) {
    for (jint i = 0; i < k; ++i) sum += c[i];
  });
  return sum;
}

// A float[] read in: its elements and their release without copy back.
// Returns the first element (0 for an empty array).
JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_floatArray(JNIEnv* env, jclass,
                                                                             jfloatArray values) {
  jsize n = env->GetArrayLength(values);
  jfloat* elements = env->GetFloatArrayElements(values, nullptr);
  jfloat first = n > 0 ? elements[0] : 0;
  env->ReleaseFloatArrayElements(values, elements, JNI_ABORT);
  return first;
}

// A String[] read in as UTF-8: per string the element, its UTF-8 characters,
// their release and the deletion. Returns the total length in bytes.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_stringArray(JNIEnv* env, jclass,
                                                                             jobjectArray strings) {
  jsize n = env->GetArrayLength(strings);
  jlong bytes = 0;
  for (jsize i = 0; i < n; ++i) {
    jstring s = static_cast<jstring>(env->GetObjectArrayElement(strings, i));
    const char* utf = env->GetStringUTFChars(s, nullptr);
    for (const char* c = utf; *c != 0; ++c) ++bytes;
    env->ReleaseStringUTFChars(s, utf);
    env->DeleteLocalRef(s);
  }
  return bytes;
}

// The bulk conversions with the toolkit's own work: each floor below reads its
// Java arrays with the JNI calls of the conversion floors above, into native
// arrays, and hands them to the toolkit as the node's constructor does (a
// node is then referenced and released, as a Java object's disposal does).
// What a build costs beyond one of these is the binding's own work.

}  // extern "C"

namespace {
// The components of vector objects, k a vector, one vector after the other.
std::vector<float> componentsOf(JNIEnv* env, jobjectArray vectors, int k) {
  const jsize n = env->GetArrayLength(vectors);
  std::vector<float> out;
  out.reserve(static_cast<std::size_t>(n) * k);
  forEachVector(env, vectors, n, [&out, k](const jfloat* c) { out.insert(out.end(), c, c + k); });
  return out;
}

std::vector<SbVec2f> points2Of(JNIEnv* env, jobjectArray vectors) {
  const std::vector<float> c = componentsOf(env, vectors, 2);
  std::vector<SbVec2f> out;
  out.reserve(c.size() / 2);
  for (std::size_t i = 0; i + 1 < c.size(); i += 2) out.emplace_back(c[i], c[i + 1]);
  return out;
}

// A float[]'s elements, released without copy back when this goes.
class Floats {
 public:
  Floats(JNIEnv* env, jfloatArray array) : env(env), array(array), data(env->GetFloatArrayElements(array, nullptr)) {}
  ~Floats() { env->ReleaseFloatArrayElements(array, data, JNI_ABORT); }
  Floats(const Floats&) = delete;
  Floats& operator=(const Floats&) = delete;
  const float* get() const { return data; }

 private:
  JNIEnv* env;
  jfloatArray array;
  jfloat* data;
};

// A String[] read as UTF-8 text (the benchmarks' names are ASCII, narrowed as
// they are read), kept in one native buffer: per string the element, its
// length, its characters and the deletion, the JNI calls of the binding
// core's conversion.
class Utf8Strings {
 public:
  Utf8Strings(JNIEnv* env, jobjectArray strings) {
    const jsize n = env->GetArrayLength(strings);
    std::vector<std::size_t> starts(static_cast<std::size_t>(n));
    std::u16string chars;
    for (jsize i = 0; i < n; ++i) {
      jstring s = static_cast<jstring>(env->GetObjectArrayElement(strings, i));
      const jsize length = env->GetStringLength(s);
      if (chars.size() < static_cast<std::size_t>(length)) chars.resize(static_cast<std::size_t>(length));
      env->GetStringRegion(s, 0, length, reinterpret_cast<jchar*>(&chars[0]));
      env->DeleteLocalRef(s);
      starts[static_cast<std::size_t>(i)] = text.size();
      for (jsize c = 0; c < length; ++c) text += static_cast<char>(chars[static_cast<std::size_t>(c)]);
      text += '\0';
    }
    pointers.reserve(starts.size());
    for (std::size_t start : starts) pointers.push_back(text.data() + start);
  }
  const char** get() { return pointers.data(); }

 private:
  std::string text;
  std::vector<const char*> pointers;
};

// A node made, referenced and released.
template <class Node>
jlong madeAndReleased(Node* node) {
  node->ref();
  node->unref();
  return 1;
}
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_curveWithToolkit(JNIEnv* env, jclass,
                                                                                  jobjectArray points) {
  const std::vector<SbVec2f> p = points2Of(env, points);
  return madeAndReleased(new PoCurve(static_cast<int>(p.size()), p.data(), PoCurve::CURVEPOLYLINE));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_markerFieldWithToolkit(
    JNIEnv* env, jclass, jobjectArray points, jfloatArray values1, jfloatArray values2) {
  const std::vector<SbVec2f> p = points2Of(env, points);
  Floats v1(env, values1);
  Floats v2(env, values2);
  return madeAndReleased(new PoValuedMarkerField(static_cast<int>(p.size()), p.data(), v1.get(), v2.get()));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_multipleHistogramWithToolkit(
    JNIEnv* env, jclass, jint numHistog, jint numValues, jfloatArray values, jobjectArray histogNames,
    jobjectArray valueNames) {
  Utf8Strings histogs(env, histogNames);
  Utf8Strings labels(env, valueNames);
  Floats v(env, values);
  return madeAndReleased(new PoMultipleHistogram(SbVec2f(0, 0), 6, PoHistogram::X, numHistog, numValues, v.get(),
                                                 histogs.get(), labels.get()));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_isovaluesWithToolkit(JNIEnv* env, jclass,
                                                                                      jlong list, jfloatArray values) {
  Floats v(env, values);
  tavrel::fromHandle<PbIsovaluesList>(list)->setIrregularIsoList(env->GetArrayLength(values), v.get());
  return 1;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_benchmarks_Floors_pieChartWithToolkit(JNIEnv* env, jclass,
                                                                                     jobjectArray names,
                                                                                     jfloatArray values,
                                                                                     jobjectArray colors) {
  Utf8Strings n(env, names);
  Floats v(env, values);
  const std::vector<float> c = componentsOf(env, colors, 3);
  std::vector<SbColor> colours;
  colours.reserve(c.size() / 3);
  for (std::size_t i = 0; i + 2 < c.size(); i += 3) colours.emplace_back(c[i], c[i + 1], c[i + 2]);
  return madeAndReleased(new PoPieChart2D(SbVec2f(0, 0), 1, static_cast<short>(env->GetArrayLength(values)), n.get(),
                                          v.get(), static_cast<int>(colours.size()), colours.data()));
}

}  // extern "C"
