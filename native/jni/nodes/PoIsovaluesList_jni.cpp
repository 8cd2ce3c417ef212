// com.kestrum.tavrel.nodes.PoIsovaluesList: a property node giving the representations after it
// their isovalues: the three regular-list setters (the array ReadOnly), and the list read back with
// its description through five outputs, as a new Java array or as a direct buffer over the node's
// own memory.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoIsovaluesList.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/PropertyNodes.h"
#include "common/ToolkitCalls.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace {
PoIsovaluesList* list(jlong handle) { return tavrel::fromHandle<PoIsovaluesList>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoIsovaluesList>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIsovaluesList>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_setRegularIsoListImpl(JNIEnv* env, jobject,
    jlong handle, jint numValues, jfloatArray values, jint num) {
  tavrel::withInputs(env, [l = list(handle)](auto... a) { l->setRegularIsoList(a...); }, numValues, values, num);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_setRegularIsoListImpl1(JNIEnv*, jobject,
    jlong handle, jint num, jfloat origin, jfloat step) {
  list(handle)->setRegularIsoList(static_cast<int>(num), static_cast<float>(origin), static_cast<float>(step));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_setRegularIsoListImpl2(JNIEnv*, jobject,
    jlong handle, jfloat min, jfloat max, jint num) {
  list(handle)->setRegularIsoList(static_cast<float>(min), static_cast<float>(max), static_cast<int>(num));
}

JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_getIsoListImpl(JNIEnv* env, jobject,
    jlong handle, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step, jbooleanArray regular) {
  return tavrel::isoListCopy(env, list(handle), num, min, max, step, regular);
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_nodes_PoIsovaluesList_getDirectIsoListImpl(JNIEnv* env, jobject,
    jlong handle, jintArray num, jfloatArray min, jfloatArray max, jfloatArray step, jbooleanArray regular) {
  return tavrel::isoListBuffer(env, list(handle), num, min, max, step, regular);
}

}  // extern "C"
