// com.kestrum.tavrel.graph.PbNumericDisplayFormat: constructor functions (no
// argument-free one), the format set and read back through three outputs,
// and the format types.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbNumericDisplayFormat.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Results.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;
using tavrel::toEnum;

namespace {
PbNumericDisplayFormat* format(jlong handle) { return fromHandle<PbNumericDisplayFormat>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_ctorImpl(JNIEnv*, jclass, jint type,
                                                                                    jint width, jint precision) {
  return tavrel::construct<PbNumericDisplayFormat>(toEnum<PbNumericDisplayFormat::FormatType>(type), width,
                                                   precision);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_ctorImpl1(JNIEnv*, jclass,
                                                                                     jlong other) {
  return tavrel::constructCopy<PbNumericDisplayFormat>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_setFormatImpl(JNIEnv*, jobject,
                                                                                        jlong handle, jint type,
                                                                                        jint width,
                                                                                        jint precision) {
  format(handle)->setFormat(toEnum<PbNumericDisplayFormat::FormatType>(type), width, precision);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_getFormatImpl(JNIEnv* env, jobject,
                                                                                        jlong handle,
                                                                                        jintArray type,
                                                                                        jintArray width,
                                                                                        jintArray precision) {
  PbNumericDisplayFormat::FormatType formatType = PbNumericDisplayFormat::AUTOFORMAT;
  int formatWidth = 0;
  int formatPrecision = 0;
  format(handle)->getFormat(formatType, formatWidth, formatPrecision);
  tavrel::writeOutput(env, type, static_cast<int>(formatType));
  tavrel::writeOutput(env, width, formatWidth);
  tavrel::writeOutput(env, precision, formatPrecision);
}

// PbNumericDisplayFormat.FormatTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_00024FormatTypes_getAUTOFORMATNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbNumericDisplayFormat::AUTOFORMAT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_00024FormatTypes_getFLOATFORMATNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbNumericDisplayFormat::FLOATFORMAT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PbNumericDisplayFormat_00024FormatTypes_getINTEGERFORMATNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PbNumericDisplayFormat::INTEGERFORMAT);
}

}  // extern "C"
