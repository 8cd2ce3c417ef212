// Natives of com.kestrum.corvel.nodes.SoNode and SoGroup: the reference the
// Java object holds on its native node, inspection, and the Java defaults of
// the node's overridable operations.
//
// The defaults run the toolkit's own implementation. For a Java-extended node
// (one with an ICustomClass part) the node's virtual operation is the one that
// calls Java, so the default calls SoNode's implementation non-virtually, or,
// for the four protected operations, the node's access-interface operation;
// otherwise a Java class that does not override an operation would call itself
// without end. For any other node the default calls the virtual operation.

#include <jni.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoSeparator.h>
#include <Corvel/SoInput.h>
#include <Corvel/SoNode.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>

namespace {
template <class T = SoNode>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }

bool extended(const SoNode* n) { return dynamic_cast<const ICustomClass*>(n) != nullptr; }

SbName nameOf(JNIEnv* env, jstring name) {
  StringHelper utf(env, name);
  return SbName(utf.toUTFString());
}
}  // namespace

// SoNode's own CALL for a Java-extended node N, N's virtual CALL otherwise.
#define CORVEL_OWN_OR_VIRTUAL(N, CALL) (extended(N) ? (N)->SoNode::CALL : (N)->CALL)

// An action operation's default.
#define CORVEL_ACTION_DEFAULT(op, ActionClass)          \
  SoNode* n = from(handle);                             \
  ActionClass* a = from<ActionClass>(action);           \
  CORVEL_OWN_OR_VIRTUAL(n, op(a))

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_refNative(JNIEnv*, jclass, jlong handle) {
  from(handle)->ref();
  return handle;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_unrefNative(JNIEnv*, jclass, jlong handle) {
  from(handle)->unref();
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_nodes_SoNode_getRefCountNative(JNIEnv*, jclass, jlong handle) {
  return from(handle)->getRefCount();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_nodes_SoNode_getTypeNameNative(JNIEnv* env, jclass, jlong handle) {
  return StringHelper::fromNativeString(env, from(handle)->getTypeId().getName());
}

// --- defaults of the overridable operations ----------------------------------------

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_touchNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  CORVEL_OWN_OR_VIRTUAL(n, touch());
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_nodes_SoNode_getNameNative(JNIEnv* env, jclass, jlong handle) {
  SoNode* n = from(handle);
  return StringHelper::fromNativeString(env, CORVEL_OWN_OR_VIRTUAL(n, getName()));
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_setNameNative(JNIEnv* env, jclass, jlong handle,
                                                                          jstring name) {
  SoNode* n = from(handle);
  CORVEL_OWN_OR_VIRTUAL(n, setName(nameOf(env, name)));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_corvel_nodes_SoNode_getFileFormatNameNative(JNIEnv* env, jclass,
                                                                                       jlong handle) {
  SoNode* n = from(handle);
  auto* access = dynamic_cast<ISoBaseProtectedMethodAccess*>(n);
  return StringHelper::fromNativeString(env, access ? access->getFileFormatNameDefaultImpl() : n->getFileFormatName());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_nodes_SoNode_readInstanceNative(JNIEnv*, jclass, jlong handle,
                                                                                   jlong input, jshort flags) {
  SoNode* n = from(handle);
  auto* access = dynamic_cast<ISoBaseProtectedMethodAccess*>(n);
  auto f = static_cast<unsigned short>(flags);
  SbBool ok = access ? access->readInstanceDefaultImpl(from<SoInput>(input), f) : n->readInstance(from<SoInput>(input), f);
  return ok ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_getFieldNative(JNIEnv* env, jclass, jlong handle,
                                                                           jstring name) {
  SoNode* n = from(handle);
  return handleOf(CORVEL_OWN_OR_VIRTUAL(n, getField(nameOf(env, name))));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_getEventInNative(JNIEnv* env, jclass, jlong handle,
                                                                             jstring name) {
  SoNode* n = from(handle);
  return handleOf(CORVEL_OWN_OR_VIRTUAL(n, getEventIn(nameOf(env, name))));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_getEventOutNative(JNIEnv* env, jclass, jlong handle,
                                                                              jstring name) {
  SoNode* n = from(handle);
  return handleOf(CORVEL_OWN_OR_VIRTUAL(n, getEventOut(nameOf(env, name))));
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_setOverrideNative(JNIEnv*, jclass, jlong handle,
                                                                              jboolean state) {
  SoNode* n = from(handle);
  CORVEL_OWN_OR_VIRTUAL(n, setOverride(state != JNI_FALSE ? 1 : 0));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_nodes_SoNode_isOverrideNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  return CORVEL_OWN_OR_VIRTUAL(n, isOverride()) ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_copyNative(JNIEnv*, jclass, jlong handle,
                                                                       jboolean copyConnections) {
  SoNode* n = from(handle);
  return handleOf(CORVEL_OWN_OR_VIRTUAL(n, copy(copyConnections != JNI_FALSE ? 1 : 0)));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_nodes_SoNode_affectsStateNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  return CORVEL_OWN_OR_VIRTUAL(n, affectsState()) ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_internalAddChildNative(JNIEnv*, jclass, jlong handle,
                                                                                   jlong child) {
  SoNode* n = from(handle);
  if (auto* access = dynamic_cast<ISoNodeProtectedMethodAccess*>(n))
    access->internalAddChildDefaultImpl(from(child));
  else
    n->internalAddChild(from(child));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_getAlternateRepNative(JNIEnv*, jclass, jlong handle,
                                                                                   jlong action) {
  SoNode* n = from(handle);
  return handleOf(CORVEL_OWN_OR_VIRTUAL(n, getAlternateRep(from<SoAction>(action))));
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_nodes_SoNode_isBoundingBoxIgnoringNative(JNIEnv*, jclass,
                                                                                            jlong handle) {
  SoNode* n = from(handle);
  return CORVEL_OWN_OR_VIRTUAL(n, isBoundingBoxIgnoring()) ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_doActionNative(JNIEnv*, jclass, jlong handle,
                                                                           jlong action) {
  CORVEL_ACTION_DEFAULT(doAction, SoAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_GLRenderNative(JNIEnv*, jclass, jlong handle,
                                                                           jlong action) {
  CORVEL_ACTION_DEFAULT(GLRender, SoGLRenderAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_callbackNative(JNIEnv*, jclass, jlong handle,
                                                                           jlong action) {
  CORVEL_ACTION_DEFAULT(callback, SoCallbackAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_getBoundingBoxNative(JNIEnv*, jclass, jlong handle,
                                                                                 jlong action) {
  CORVEL_ACTION_DEFAULT(getBoundingBox, SoGetBoundingBoxAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_getMatrixNative(JNIEnv*, jclass, jlong handle,
                                                                            jlong action) {
  CORVEL_ACTION_DEFAULT(getMatrix, SoGetMatrixAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_handleEventNative(JNIEnv*, jclass, jlong handle,
                                                                              jlong action) {
  CORVEL_ACTION_DEFAULT(handleEvent, SoHandleEventAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_pickNative(JNIEnv*, jclass, jlong handle, jlong action) {
  CORVEL_ACTION_DEFAULT(pick, SoPickAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_rayPickNative(JNIEnv*, jclass, jlong handle,
                                                                          jlong action) {
  CORVEL_ACTION_DEFAULT(rayPick, SoRayPickAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_searchNative(JNIEnv*, jclass, jlong handle, jlong action) {
  CORVEL_ACTION_DEFAULT(search, SoSearchAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_writeNative(JNIEnv*, jclass, jlong handle, jlong action) {
  CORVEL_ACTION_DEFAULT(write, SoWriteAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_getPrimitiveCountNative(JNIEnv*, jclass, jlong handle,
                                                                                    jlong action) {
  CORVEL_ACTION_DEFAULT(getPrimitiveCount, SoGetPrimitiveCountAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_distributeNative(JNIEnv*, jclass, jlong handle,
                                                                             jlong action) {
  CORVEL_ACTION_DEFAULT(distribute, SoDistributeAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_GLRenderBelowPathNative(JNIEnv*, jclass, jlong handle,
                                                                                    jlong action) {
  CORVEL_ACTION_DEFAULT(GLRenderBelowPath, SoGLRenderAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_GLRenderInPathNative(JNIEnv*, jclass, jlong handle,
                                                                                 jlong action) {
  CORVEL_ACTION_DEFAULT(GLRenderInPath, SoGLRenderAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_GLRenderOffPathNative(JNIEnv*, jclass, jlong handle,
                                                                                  jlong action) {
  CORVEL_ACTION_DEFAULT(GLRenderOffPath, SoGLRenderAction);
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_grabEventsSetupNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  CORVEL_OWN_OR_VIRTUAL(n, grabEventsSetup());
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoNode_grabEventsCleanupNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  CORVEL_OWN_OR_VIRTUAL(n, grabEventsCleanup());
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_nodes_SoNode_getRenderUnitIDNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  return CORVEL_OWN_OR_VIRTUAL(n, getRenderUnitID());
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_nodes_SoNode_getRenderEngineModeNative(JNIEnv*, jclass, jlong handle) {
  SoNode* n = from(handle);
  return static_cast<jint>(CORVEL_OWN_OR_VIRTUAL(n, getRenderEngineMode()).getRenderMode());
}

// --- SoGroup -------------------------------------------------------------------

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoGroup_newNative(JNIEnv*, jclass) {
  return handleOf(static_cast<SoNode*>(new SoGroup));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoSeparator_newSeparatorNative(JNIEnv*, jclass) {
  return handleOf(static_cast<SoNode*>(new SoSeparator));
}

JNIEXPORT void JNICALL Java_com_kestrum_corvel_nodes_SoGroup_addChildNative(JNIEnv*, jclass, jlong handle,
                                                                            jlong child) {
  from<SoGroup>(handle)->addChild(from(child));
}

JNIEXPORT jint JNICALL Java_com_kestrum_corvel_nodes_SoGroup_getNumChildrenNative(JNIEnv*, jclass, jlong handle) {
  return from<SoGroup>(handle)->getNumChildren();
}

// --- types ----------------------------------------------------------------------

// True when the node's type is the named type or derives from it (false for
// an unknown name).
JNIEXPORT jboolean JNICALL Java_com_kestrum_corvel_nodes_SoNode_isOfTypeNative(JNIEnv* env, jclass, jlong handle,
                                                                            jstring typeName) {
  SoType type = SoType::fromName(nameOf(env, typeName));
  return !type.isBad() && from(handle)->getTypeId().isDerivedFrom(type) ? JNI_TRUE : JNI_FALSE;
}

// A new node of the named type, made by the type's creation function; 0 when
// the name is unknown, names no node type, or the type makes no instance (an
// abstract class).
JNIEXPORT jlong JNICALL Java_com_kestrum_corvel_nodes_SoNode_createInstanceNative(JNIEnv* env, jclass,
                                                                               jstring typeName) {
  SoType type = SoType::fromName(nameOf(env, typeName));
  if (type.isBad() || !type.isDerivedFrom(SoNode::getClassTypeIdUnjournaled()) || !type.canCreateInstance()) return 0;
  return handleOf(type.createInstance());
}

}  // extern "C"
