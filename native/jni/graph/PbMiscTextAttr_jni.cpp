// com.kestrum.tavrel.graph.PbMiscTextAttr: constructor functions, the font
// name (taken as a wide string into an SbString), the line length (a char
// type, sign-extended from the Java byte, and an int) and the profile flags,
// and the line-length enumeration.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbMiscTextAttr.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Results.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;

namespace {
PbMiscTextAttr* attributes(jlong handle) { return fromHandle<PbMiscTextAttr>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PbMiscTextAttr>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_ctorImpl1(JNIEnv*, jclass, jlong other) {
  return tavrel::constructCopy<PbMiscTextAttr>(other);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_setFontNameImpl1(JNIEnv* env, jobject,
                                                                                   jlong handle, jstring name) {
  tavrel::WideName font(env, name);
  attributes(handle)->setFontName(font.value);
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_getFontNameImpl(JNIEnv* env, jobject,
                                                                                     jlong handle) {
  return StringHelper::fromNativeString(env, attributes(handle)->getFontName());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_setLineLengthImpl(JNIEnv*, jobject,
                                                                                    jlong handle, jbyte type,
                                                                                    jint length) {
  attributes(handle)->setLineLength(static_cast<char>(type), length);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_getLineLengthImpl(JNIEnv* env, jobject,
                                                                                    jlong handle,
                                                                                    jbyteArray type,
                                                                                    jintArray length) {
  char lineType = 0;
  int lineLength = 0;
  attributes(handle)->getLineLength(lineType, lineLength);
  tavrel::writeOutput(env, type, lineType);
  tavrel::writeOutput(env, length, lineLength);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_enableProfileImpl(JNIEnv*, jobject,
                                                                                    jlong handle, jboolean flag) {
  attributes(handle)->enableProfile(tavrel::toFlag(flag));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_isProfileEnabledImpl(JNIEnv*, jobject,
                                                                                           jlong handle) {
  return tavrel::toJBoolean(attributes(handle)->isProfileEnabled());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_enablePredefinedProfileImpl(JNIEnv*, jobject,
                                                                                              jlong handle,
                                                                                              jboolean flag) {
  attributes(handle)->enablePredefinedProfile(tavrel::toFlag(flag));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_isPredefinedProfileEnabledImpl(
    JNIEnv*, jobject, jlong handle) {
  return tavrel::toJBoolean(attributes(handle)->isPredefinedProfileEnabled());
}

// PbMiscTextAttr.LineLengths

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_00024LineLengths_getLINELENGTHMAXNative(JNIEnv*,
                                                                                                          jclass) {
  return tavrel::enumValue(PbMiscTextAttr::LINELENGTHMAX);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PbMiscTextAttr_00024LineLengths_getLINELENGTHMINNative(JNIEnv*,
                                                                                                          jclass) {
  return tavrel::enumValue(PbMiscTextAttr::LINELENGTHMIN);
}

}  // extern "C"
