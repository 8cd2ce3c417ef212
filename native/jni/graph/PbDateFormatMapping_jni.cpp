// com.kestrum.tavrel.graph.PbDateFormatMapping: constructor functions, the
// date mapping (dates as UTF-8 char const*), the format and the dates read
// as coordinates (as wide strings into SbString). The int results of the
// toolkit reach Java unchanged.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDateFormatMapping.h>

#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;
using tavrel::Utf8Text;
using tavrel::WideName;

namespace {
PbDateFormatMapping* mapping(jlong handle) { return fromHandle<PbDateFormatMapping>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbDateFormatMapping>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbDateFormatMapping>(other);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_ctorImpl2(JNIEnv* env, jclass,
                                                                                  jstring date1, jstring date2,
                                                                                  jfloat coord1, jfloat coord2,
                                                                                  jstring format) {
  Utf8Text first(env, date1);
  Utf8Text second(env, date2);
  Utf8Text pattern(env, format);
  return tavrel::construct<PbDateFormatMapping>(first.value, second.value, coord1, coord2, pattern.value);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_setDateMappingImpl(JNIEnv* env, jobject,
                                                                                          jlong handle,
                                                                                          jstring date1,
                                                                                          jstring date2,
                                                                                          jfloat coord1,
                                                                                          jfloat coord2) {
  Utf8Text first(env, date1);
  Utf8Text second(env, date2);
  return mapping(handle)->setDateMapping(first.value, second.value, coord1, coord2);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_setFormatImpl1(JNIEnv* env, jobject,
                                                                                      jlong handle,
                                                                                      jstring format) {
  WideName pattern(env, format);
  return mapping(handle)->setFormat(pattern.value);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_getFormatImpl(JNIEnv* env, jobject,
                                                                                        jlong handle) {
  return StringHelper::fromNativeString(env, mapping(handle)->getFormat());
}

// The coordinate starts at 0 and reaches coord[0] whatever the toolkit
// returned.
JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbDateFormatMapping_getCoordinateImpl1(JNIEnv* env, jobject,
                                                                                          jlong handle,
                                                                                          jstring date,
                                                                                          jfloatArray coord) {
  WideName text(env, date);
  float coordinate = 0.0f;
  const int result = mapping(handle)->getCoordinate(text.value, coordinate);
  tavrel::writeOutput(env, coord, coordinate);
  return result;
}

}  // extern "C"
