// com.kestrum.tavrel.nodes.PoCellFilter: the Java-extensible cell filter.

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoCellFilter.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "custom/CustomPoCellFilter.h"
#include "custom/JavaExtensible.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

// The handle is the filter's address as a PoCellFilter (its primary base).
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_ctorImpl(JNIEnv*, jclass) {
  return tavrel::toHandle(static_cast<PoCellFilter*>(new CustomPoCellFilter));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellFilter>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoCellFilter::initClass();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_initCustomClass(JNIEnv* env, jobject, jlong filter,
                                                                                  jobject peer, jboolean create,
                                                                                  jstring typeName) {
  tavrel::initCustomClass<CustomPoCellFilter, PoCellFilter>(env, filter, peer, create, typeName);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_initCustomRenderEngineMode(JNIEnv*, jobject,
                                                                                             jlong filter) {
  static_cast<CustomPoCellFilter*>(tavrel::fromHandle<PoCellFilter>(filter))->initRenderEngineMode();
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_acceptCellImpl(JNIEnv* env, jobject,
                                                                                     jlong filter, jint index,
                                                                                     jfloat value) {
  return tavrel::refuseOrVirtual<PoCellFilter, jboolean>(
      env, filter, "Call of a pure virtual method: PoCellFilter::acceptCell",
      [index, value](PoCellFilter* f) { return tavrel::toJBoolean(f->acceptCell(index, value)); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_doActionImpl(JNIEnv*, jobject, jlong filter,
                                                                               jlong action) {
  tavrel::callBaseOrVirtual<PoCellFilter>(
      filter, [action](PoCellFilter* f) { f->PoCellFilter::doAction(tavrel::fromHandle<SoAction>(action)); },
      [action](PoCellFilter* f) { f->doAction(tavrel::fromHandle<SoAction>(action)); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoCellFilter_writeImpl(JNIEnv*, jobject, jlong filter,
                                                                            jlong action) {
  tavrel::callBaseOrVirtual<PoCellFilter>(
      filter, [action](PoCellFilter* f) { f->PoCellFilter::write(tavrel::fromHandle<SoWriteAction>(action)); },
      [action](PoCellFilter* f) { f->write(tavrel::fromHandle<SoWriteAction>(action)); });
}

}  // extern "C"
