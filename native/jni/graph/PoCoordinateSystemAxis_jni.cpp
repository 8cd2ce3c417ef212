// com.kestrum.tavrel.graph.PoCoordinateSystemAxis, constructor functions.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCoordinateSystemAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoCoordinateSystemAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoCoordinateSystemAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCoordinateSystemAxis_getClassNodekitCatalogImpl(JNIEnv*,
                                                                                                        jclass) {
  return tavrel::classCatalog<PoCoordinateSystemAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCoordinateSystemAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoCoordinateSystemAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoCoordinateSystemAxis_ctorImpl1(JNIEnv* env, jclass,
                                                                                       jfloatArray start,
                                                                                       jfloatArray end,
                                                                                       jstring xTitle, jstring yTitle,
                                                                                       jstring zTitle,
                                                                                       jfloat gradDistance,
                                                                                       jfloat arrowLength) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const SbVec3f& e = in.vec3(end);
    const char* x = in.text(xTitle);
    const char* y = in.text(yTitle);
    const char* z = in.text(zTitle);
    return new PoCoordinateSystemAxis{s, e, x, y, z, gradDistance, arrowLength};
  });
}

}  // extern "C"
