// com.kestrum.tavrel.graph.PoPieChartRep, the representation of a pie chart's slices: its slice
// translations and picking (the picked slice at element 0 of the output).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoPieChartRep.h>

#include "common/ClassFamilies.h"
#include "common/Shapes.h"

using tavrel::fromHandle;

namespace {
PoPieChartRep* chart(jlong handle) { return fromHandle<PoPieChartRep>(handle); }
}  // namespace

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoPieChartRep>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoPieChartRep>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoPieChartRep>();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_setSliceToTranslateImpl(
    JNIEnv*, jobject, jlong handle, jint slice, jfloat distance) {
  chart(handle)->setSliceToTranslate(slice, distance);
}

JNIEXPORT jfloat JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_getSliceToTranslateImpl(
    JNIEnv*, jobject, jlong handle, jint slice) {
  return chart(handle)->getSliceToTranslate(slice);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoPieChartRep_getPickedSliceNumberImpl(
    JNIEnv* env, jobject, jlong handle, jlong path, jintArray slice) {
  return tavrel::pickedSlice<PoPieChartRep>(env, handle, path, slice);
}

}  // extern "C"
