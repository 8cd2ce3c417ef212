// com.kestrum.tavrel.nodes.PoDateFormatMapping: a property node mapping dates onto coordinates, and
// the coordinate of a date (the date as UTF-8; 0.0 reaches the output when the toolkit writes no
// coordinate).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoDateFormatMapping.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/PropertyNodes.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoDateFormatMapping_ctorImpl(JNIEnv*, jclass) {
  return tavrel::construct<PoDateFormatMapping>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoDateFormatMapping_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDateFormatMapping>(env);
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_nodes_PoDateFormatMapping_getCoordinateImpl(JNIEnv* env, jobject,
    jlong handle, jstring date, jfloatArray coord) {
  return tavrel::coordinateOfDate(env, tavrel::fromHandle<const PoDateFormatMapping>(handle), date, coord);
}

}  // extern "C"
