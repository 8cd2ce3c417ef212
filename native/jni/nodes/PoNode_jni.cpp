// com.kestrum.tavrel.nodes.PoNode: the Java-extensible node. The Impl methods
// let a Java override reach the toolkit's own behaviour of its node.

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoModuleCheck.h>
#include <Tavrel/PoNode.h>

#include "common/ClassFamilies.h"
#include "common/Handles.h"
#include "custom/CustomPoNode.h"
#include "custom/JavaExtensible.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

// PoNode::op for a Java-extensible node, the node's own op for any other.
#define PO_NODE_BASE_OR_VIRTUAL(op, ActionClass)                                         \
  tavrel::callBaseOrVirtual<PoNode>(                                                     \
      node, [action](PoNode* n) { n->PoNode::op(tavrel::fromHandle<ActionClass>(action)); }, \
      [action](PoNode* n) { n->op(tavrel::fromHandle<ActionClass>(action)); })

extern "C" {

// The handle is the node's address as a PoNode (its primary base).
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_nodes_PoNode_ctorImpl(JNIEnv*, jclass) {
  return tavrel::toHandle(static_cast<PoNode*>(new CustomPoNode));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_nodes_PoNode_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoNode>(env);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoNode::initClass();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_initCustomClass(JNIEnv* env, jobject, jlong node,
                                                                            jobject peer, jboolean create,
                                                                            jstring typeName) {
  tavrel::initCustomClass<CustomPoNode, PoNode>(env, node, peer, create, typeName);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_initCustomRenderEngineMode(JNIEnv*, jobject, jlong node) {
  static_cast<CustomPoNode*>(tavrel::fromHandle<PoNode>(node))->initRenderEngineMode();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_doActionImpl(JNIEnv* env, jobject, jlong node,
                                                                         jlong action) {
  tavrel::refuseOrVirtual<PoNode, void>(env, node, "Call of a pure virtual method: PoNode::doAction",
                                        [action](PoNode* n) { n->doAction(tavrel::fromHandle<SoAction>(action)); });
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_callbackImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(callback, SoCallbackAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_GLRenderImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(GLRender, SoGLRenderAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_getBoundingBoxImpl(JNIEnv*, jobject, jlong node,
                                                                               jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(getBoundingBox, SoGetBoundingBoxAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_getMatrixImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(getMatrix, SoGetMatrixAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_handleEventImpl(JNIEnv*, jobject, jlong node,
                                                                            jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(handleEvent, SoHandleEventAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_pickImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(pick, SoPickAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_searchImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(search, SoSearchAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_writeImpl(JNIEnv*, jobject, jlong node, jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(write, SoWriteAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_nodes_PoNode_getPrimitiveCountImpl(JNIEnv*, jobject, jlong node,
                                                                                  jlong action) {
  PO_NODE_BASE_OR_VIRTUAL(getPrimitiveCount, SoGetPrimitiveCountAction);
}

}  // extern "C"
