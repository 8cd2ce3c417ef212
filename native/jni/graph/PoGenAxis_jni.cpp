// com.kestrum.tavrel.graph.PoGenAxis, an axis graduated with given strings.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoGenAxis.h>

#include "common/Axes.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::toEnum;

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoGenAxis_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoGenAxis>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGenAxis_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoGenAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGenAxis_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoGenAxis>();
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoGenAxis_ctorImpl1(JNIEnv* env, jclass, jfloatArray start,
                                                                          jfloat end, jint type, jobjectArray grads,
                                                                          jint count) {
  return tavrel::constructAxis(env, [=](tavrel::AxisArguments& in) {
    const SbVec3f& s = in.vec3(start);
    const char** g = in.strings(grads);
    return new PoGenAxis{s, end, toEnum<PoCartesianAxis::Type>(type), g, tavrel::narrowCount(count)};
  });
}

}  // extern "C"
