// com.kestrum.tavrel.graph.PoBase: the process-wide write format, text type
// and VRML2 mode; a node's update method, flags, domain and rebuild; the
// registration of rebuild callbacks; class-level getters and enumerations.

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PoBase.h>

#include "callbacks/PoRebuildCallback.h"
#include "common/CallbackRegistration.h"
#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "common/Links.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

using tavrel::fromHandle;
using tavrel::toEnum;
using tavrel::toJBoolean;

namespace {
PoBase* node(jlong handle) { return fromHandle<PoBase>(handle); }
}  // namespace

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_graph_PoBase_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeNameOfMember<PoBase>(env);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBase_getClassNodekitCatalogImpl(JNIEnv*, jclass) {
  return tavrel::classCatalog<PoBase>();
}

// --- process-wide values ----------------------------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_setNodeWriteFormatImpl(JNIEnv*, jclass, jint format) {
  PoBase::setNodeWriteFormat(toEnum<PoBase::NodeWriteFormat>(format));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBase_getNodeWriteFormatImpl(JNIEnv*, jclass) {
  return PoBase::getNodeWriteFormat();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_setTextTypeImpl(JNIEnv*, jclass, jint type) {
  PoBase::setTextType(toEnum<PoBase::TextType>(type));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBase_getTextTypeImpl(JNIEnv*, jclass) {
  return PoBase::getTextType();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_setVRML2ModeImpl(JNIEnv*, jclass, jboolean flag) {
  PoBase::setVRML2Mode(tavrel::toFlag(flag));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PoBase_isVRML2ModeImpl(JNIEnv*, jclass) {
  return toJBoolean(PoBase::isVRML2Mode());
}

// --- the node's state, read and written directly -------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_setUpdateMethodImpl(JNIEnv*, jobject, jlong handle,
                                                                              jint method) {
  node(handle)->setUpdateMethod(toEnum<PoBase::UpdateMethodType>(method));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBase_getUpdateMethodImpl(JNIEnv*, jobject, jlong handle) {
  return node(handle)->getUpdateMethod();
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PoBase_isModifiedImpl(JNIEnv*, jobject, jlong handle) {
  return toJBoolean(node(handle)->isModified());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_graph_PoBase_isBuiltImpl(JNIEnv*, jobject, jlong handle) {
  return toJBoolean(node(handle)->isBuilt());
}

// --- domain and rebuild -------------------------------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_setDomainImpl(JNIEnv*, jobject, jlong handle,
                                                                        jlong domain) {
  tavrel::setLink(handle, &PoBase::setDomain, domain);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_graph_PoBase_getDomainImpl(JNIEnv*, jobject, jlong handle) {
  return tavrel::getLink(handle, &PoBase::getDomain);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_touchKitImpl(JNIEnv*, jobject, jlong handle) {
  node(handle)->touchKit();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_rebuildImpl(JNIEnv*, jobject, jlong handle) {
  node(handle)->rebuild();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_addPreRebuildCallbackImpl(JNIEnv* env, jobject,
                                                                                    jlong handle, jobject callback,
                                                                                    jobject userData, jlong bridge) {
  tavrel::registerBridge<PoRebuildCallback>(env, handle, &PoBase::addPreRebuildCallback, callback, userData, bridge);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_graph_PoBase_addPostRebuildCallbackImpl(JNIEnv* env, jobject,
                                                                                     jlong handle, jobject callback,
                                                                                     jobject userData, jlong bridge) {
  tavrel::registerBridge<PoRebuildCallback>(env, handle, &PoBase::addPostRebuildCallback, callback, userData, bridge);
}

// PoBase.UpdateMethodTypes

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBase_00024UpdateMethodTypes_getUPDATEMETHODIMMEDIATENative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::UPDATEMETHODIMMEDIATE);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBase_00024UpdateMethodTypes_getUPDATEMETHODONACTIONNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::UPDATEMETHODONACTION);
}

// PoBase.NodeWriteFormats

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBase_00024NodeWriteFormats_getFOLDNODEWRITEFORMATNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::FOLDNODEWRITEFORMAT);
}

JNIEXPORT jint JNICALL
Java_com_kestrum_tavrel_graph_PoBase_00024NodeWriteFormats_getUNFOLDNODEWRITEFORMATNative(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::UNFOLDNODEWRITEFORMAT);
}

// PoBase.TextTypes

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBase_00024TextTypes_getSOTEXT3Native(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::SOTEXT3);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_graph_PoBase_00024TextTypes_getSOANNOTEXT3Native(JNIEnv*, jclass) {
  return tavrel::enumValue(PoBase::SOANNOTEXT3);
}

}  // extern "C"
