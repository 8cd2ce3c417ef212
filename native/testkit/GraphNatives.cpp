// com.kestrum.tavrel.testkit.Graphs: inside the graph nodes and attribute
// objects of the toolkit stand-in (builds, outlines, registered callbacks,
// formatted numbers and dates), and a graph node whose class builds nothing.

#include <jni.h>

#include <CorvelJNI/ArrayHelper.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoChart.h>
#include <Tavrel/PoRectangle.h>

#include <cstdint>
#include <vector>

namespace {
template <class T>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}
jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }

// A graph node of a class that does not override rebuild(): rebuilding it
// changes nothing. Its type is PoChart's.
class PlainGraphNode : public PoChart {
 public:
  PlainGraphNode() = default;
  ~PlainGraphNode() override = default;
};

const std::vector<PoBase::Callback>& callbacks(jlong node, jboolean pre) {
  const PoBase* n = from<PoBase>(node);
  return pre ? n->preRebuildCallbacks() : n->postRebuildCallbacks();
}
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Graphs_newPlainGraphNode(JNIEnv*, jclass) {
  return handleOf(static_cast<PoBase*>(new PlainGraphNode));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Graphs_buildCount(JNIEnv*, jclass, jlong node) {
  return from<PoBase>(node)->getBuildCount();
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Graphs_outline(JNIEnv* env, jclass, jlong rectangle) {
  const std::vector<SbVec3f>& points = from<PoRectangle>(rectangle)->getOutline();
  std::vector<float> floats;
  for (const SbVec3f& p : points) floats.insert(floats.end(), p.getValue(), p.getValue() + 3);
  return ArrayHelper::fromNativeArray(env, floats.data(), floats.size());
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Graphs_numCallbacks(JNIEnv*, jclass, jlong node,
                                                                          jboolean pre) {
  return static_cast<jint>(callbacks(node, pre).size());
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Graphs_callbackUserData(JNIEnv*, jclass, jlong node,
                                                                               jboolean pre, jint index) {
  return handleOf(callbacks(node, pre).at(static_cast<std::size_t>(index)).userData);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Graphs_revision(JNIEnv*, jclass, jlong attribute) {
  return static_cast<jint>(from<PbBase>(attribute)->getRevision());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Graphs_format(JNIEnv* env, jclass, jlong format,
                                                                       jfloat value) {
  return StringHelper::fromNativeString(env, from<PbNumericDisplayFormat>(format)->format(value));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Graphs_date(JNIEnv* env, jclass, jlong mapping,
                                                                     jfloat coord) {
  return StringHelper::fromNativeString(env, from<PbDateFormatMapping>(mapping)->getDate(coord));
}

}  // extern "C"
