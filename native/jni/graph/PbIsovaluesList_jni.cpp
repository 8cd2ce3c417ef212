// com.kestrum.tavrel.graph.PbIsovaluesList: constructor functions,
// comparison, the regular and irregular setters, and the list read back
// with its description through five outputs, as a copy or as a direct buffer
// over the list's own memory.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PbIsovaluesList.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

namespace {
PbIsovaluesList* list(jlong handle) { return fromHandle<PbIsovaluesList>(handle); }

// The five results of getIsoList, each starting at 0, and the list.
struct IsoList {
  int count = 0;
  float lo = 0.0f;
  float hi = 0.0f;
  float delta = 0.0f;
  SbBool isRegular = 0;
  const float* values = nullptr;

  explicit IsoList(jlong handle) { values = list(handle)->getIsoList(count, lo, hi, delta, isRegular); }

  // The results into element 0 of the five outputs, in order.
  void store(JNIEnv* env, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step,
             jbooleanArray regular) const {
    tavrel::writeOutput(env, num, count);
    tavrel::writeOutput(env, min, lo);
    tavrel::writeOutput(env, max, hi);
    tavrel::writeOutput(env, step, delta);
    tavrel::writeOutput(env, regular, isRegular);
  }
};
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbIsovaluesList>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbIsovaluesList>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_ctorImpl2(JNIEnv*, jclass, jfloat min,
                                                                              jfloat max, jint num) {
  return tavrel::construct<PbIsovaluesList>(min, max, num);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_equalsImpl(JNIEnv*, jobject, jlong handle,
                                                                                  jlong other) {
  return tavrel::toJBoolean(*list(handle) == *list(other));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl(JNIEnv* env, jobject,
                                                                                         jlong handle,
                                                                                         jint numValues,
                                                                                         jfloatArray values,
                                                                                         jint num) {
  ArrayHelper helper(env);
  list(handle)->setRegularIsoList(numValues, helper.toNativeArray(values, ArrayHelper::ReadOnly), num);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl1(JNIEnv* env, jobject,
                                                                                          jlong handle,
                                                                                          jint numValues,
                                                                                          jfloatArray values) {
  ArrayHelper helper(env);
  list(handle)->setRegularIsoList(numValues, helper.toNativeArray(values, ArrayHelper::ReadOnly));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl2(JNIEnv*, jobject,
                                                                                          jlong handle, jint num,
                                                                                          jfloat origin,
                                                                                          jfloat step) {
  list(handle)->setRegularIsoList(num, origin, step);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl3(JNIEnv*, jobject,
                                                                                          jlong handle, jfloat min,
                                                                                          jfloat max, jint num) {
  list(handle)->setRegularIsoList(min, max, num);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl4(JNIEnv*, jobject,
                                                                                          jlong handle, jfloat min,
                                                                                          jfloat max) {
  list(handle)->setRegularIsoList(min, max);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setRegularIsoListImpl5(JNIEnv*, jobject,
                                                                                          jlong handle, jint num) {
  list(handle)->setRegularIsoList(num);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_setIrregularIsoListImpl(JNIEnv* env, jobject,
                                                                                           jlong handle, jint num,
                                                                                           jfloatArray values) {
  ArrayHelper helper(env);
  list(handle)->setIrregularIsoList(num, helper.toNativeArray(values, ArrayHelper::ReadOnly));
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_getIsoListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step,
    jbooleanArray regular) {
  const IsoList iso(handle);
  iso.store(env, num, min, max, step, regular);
  return ArrayHelper::fromNativeArray(env, iso.values, static_cast<unsigned long>(iso.count));
}

// The buffer is made before the outputs are written.
JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_graph_PbIsovaluesList_getDirectIsoListImpl(
    JNIEnv* env, jobject, jlong handle, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step,
    jbooleanArray regular) {
  const IsoList iso(handle);
  jobject buffer = tavrel::directBuffer(env, iso.values, sizeof(float) * static_cast<std::size_t>(iso.count));
  iso.store(env, num, min, max, step, regular);
  return buffer;
}

}  // extern "C"
