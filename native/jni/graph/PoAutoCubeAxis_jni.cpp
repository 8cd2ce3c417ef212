// com.kestrum.tavrel.graph.PoAutoCubeAxis, constructor functions and the render entry.

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoAutoCubeAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoAutoCubeAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoAutoCubeAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoAutoCubeAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                               jfloatArray end, jint xType,
                                                                               jint yType, jint zType, jstring xTitle,
                                                                               jstring yTitle, jstring zTitle) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const SbVec3f& e = in.vec3(end);
    const char* x = in.text(xTitle);
    const char* y = in.text(yTitle);
    const char* z = in.text(zTitle);
    return new PoAutoCubeAxis{s, e, toEnum<PoAutoCubeAxis::AxisType>(xType), toEnum<PoAutoCubeAxis::AxisType>(yType),
                              toEnum<PoAutoCubeAxis::AxisType>(zType), x, y, z};
  });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_GLRenderImpl(JNIEnv*, jobject, jlong handle,
                                                                                 jlong action) {
  tavrel::fromHandle<PoAutoCubeAxis>(handle)->GLRender(tavrel::fromHandle<SoGLRenderAction>(action));
}

// PoAutoCubeAxis.AxisTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_00024AxisTypes_getLINEARNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAutoCubeAxis::LINEAR);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_00024AxisTypes_getLOGARITHMICNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAutoCubeAxis::LOGARITHMIC);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoAutoCubeAxis_00024AxisTypes_getGENERALIZEDNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoAutoCubeAxis::GENERALIZED);
}

}  // extern "C"
