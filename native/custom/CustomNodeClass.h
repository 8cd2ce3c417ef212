// The shared body of the Java-extensible node classes, CustomPoNode and
// CustomPoCellFilter. Both are built the same way on a different toolkit base
// (PoNode, PoCellFilter); each header declares its bases and members in its
// own order and uses the macros below for what the two classes share:
//
//   TAVREL_NODE_METHOD_ROWS       the Java methods both call, in row order
//   TAVREL_CUSTOM_NODE_MEMBERS    declarations of the overrides, the access-
//                                 interface operations and the class-level
//                                 operations, in slot order
//   TAVREL_CUSTOM_NODE_DEFINITIONS(Class)   their definitions
//
// A class using them defines ToolkitBase (its toolkit base class), kClassName
// (its C++ name, for the exception messages), kClassTypeName (the name of its
// class type) and its InitJNIFields, and holds the instance members fieldData,
// typeId, renderEngineMode, fileFormatName, children and the class-level
// members classMutex, classTypeId, parentFieldData, isBuiltIn, s_init.
//
// Decisions of these classes:
//  - classMutex is a recursive SbThreadMutex: the constructor holds it while it
//    calls initClass(), which takes it again. It and classTypeId are created
//    once, under a once-flag, so that two threads making the first node at the
//    same time create one lock, not two.
//  - The Java peer is held through the weak global reference that
//    ICustomClass::initJavaObject(env, peer, true) stores. The Java side keeps
//    the peer of a Java-extended node reachable until the Java object is
//    disposed (com.kestrum.tavrel.nodes.PoNode); a forwarded call takes a local
//    reference first and does nothing once the peer is gone (ForwardedCall.h).
//    Neither the destructor nor anything else here releases the weak
//    reference: ICustomClass owns it and releases it when the node is
//    destroyed.
//  - The node owns fieldData and deletes it with the node.
//  - getName after a Java exception, or for a null Java result, is the empty
//    name.
#pragma once

#include <jni.h>

#include <Corvel/SbRenderEngineMode.h>
#include <Corvel/SbThreadMutex.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoBase.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoField.h>
#include <Corvel/SoInput.h>
#include <Corvel/SoType.h>
#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>

#include <mutex>
#include <string>

#include "common/Handles.h"
#include "custom/ForwardedCall.h"

// Rows 0 to 33: member of InitJNIFields (the Java method's name) and signature.
#define TAVREL_NODE_METHOD_ROWS(ROW)                                                                     \
  ROW(getNativeResourceHandleInternal, "()J")                                                            \
  ROW(touch, "()V")                                                                                      \
  ROW(getName, "()Ljava/lang/String;")                                                                   \
  ROW(setName, "(Ljava/lang/String;)V")                                                                  \
  ROW(getFileFormatName, "()Ljava/lang/String;")                                                         \
  ROW(readInstance, "(Lcom/kestrum/corvel/SoInput;S)Z")                                                  \
  ROW(getField, "(Ljava/lang/String;)Lcom/kestrum/corvel/fields/SoField;")                               \
  ROW(getEventIn, "(Ljava/lang/String;)Lcom/kestrum/corvel/fields/SoField;")                             \
  ROW(getEventOut, "(Ljava/lang/String;)Lcom/kestrum/corvel/fields/SoField;")                            \
  ROW(setOverride, "(Z)V")                                                                               \
  ROW(isOverride, "()Z")                                                                                 \
  ROW(copy, "(Z)Lcom/kestrum/corvel/nodes/SoNode;")                                                      \
  ROW(affectsState, "()Z")                                                                               \
  ROW(internalAddChild, "(Lcom/kestrum/corvel/nodes/SoNode;)V")                                          \
  ROW(getAlternateRep, "(Lcom/kestrum/corvel/actions/SoAction;)Lcom/kestrum/corvel/nodes/SoNode;")       \
  ROW(isBoundingBoxIgnoring, "()Z")                                                                      \
  ROW(doAction, "(Lcom/kestrum/corvel/actions/SoAction;)V")                                              \
  ROW(GLRender, "(Lcom/kestrum/corvel/actions/SoGLRenderAction;)V")                                      \
  ROW(callback, "(Lcom/kestrum/corvel/actions/SoCallbackAction;)V")                                      \
  ROW(getBoundingBox, "(Lcom/kestrum/corvel/actions/SoGetBoundingBoxAction;)V")                          \
  ROW(getMatrix, "(Lcom/kestrum/corvel/actions/SoGetMatrixAction;)V")                                    \
  ROW(handleEvent, "(Lcom/kestrum/corvel/actions/SoHandleEventAction;)V")                                \
  ROW(pick, "(Lcom/kestrum/corvel/actions/SoPickAction;)V")                                              \
  ROW(rayPick, "(Lcom/kestrum/corvel/actions/SoRayPickAction;)V")                                        \
  ROW(search, "(Lcom/kestrum/corvel/actions/SoSearchAction;)V")                                          \
  ROW(write, "(Lcom/kestrum/corvel/actions/SoWriteAction;)V")                                            \
  ROW(getPrimitiveCount, "(Lcom/kestrum/corvel/actions/SoGetPrimitiveCountAction;)V")                    \
  ROW(distribute, "(Lcom/kestrum/corvel/actions/SoDistributeAction;)V")                                  \
  ROW(GLRenderBelowPath, "(Lcom/kestrum/corvel/actions/SoGLRenderAction;)V")                             \
  ROW(GLRenderInPath, "(Lcom/kestrum/corvel/actions/SoGLRenderAction;)V")                                \
  ROW(GLRenderOffPath, "(Lcom/kestrum/corvel/actions/SoGLRenderAction;)V")                               \
  ROW(grabEventsSetup, "()V")                                                                            \
  ROW(grabEventsCleanup, "()V")                                                                          \
  ROW(getRenderUnitID, "()I")

// The row that asks for the render-engine mode (the last row of both classes).
#define TAVREL_RENDER_MODE_SIGNATURE "()Lcom/kestrum/corvel/nodes/SoNode$RenderModes;"

#define TAVREL_DECLARE_METHOD_ID(name, signature) jmethodID name;
#define TAVREL_LOOKUP_METHOD_ID(name, signature) name = env->GetMethodID(cls, #name, signature);

// Declarations shared by the two classes, in the toolkit's slot order; after
// the overrides come the class's own operations implementing the interfaces.
#define TAVREL_CUSTOM_NODE_MEMBERS                                                 \
 public:                                                                          \
  static void initClass();                                                        \
  void initType(bool create, const char* name);                                   \
  static void* createInstance(SoType* type);                                      \
  void initRenderEngineMode();                                                    \
  static SoType getClassTypeId();                                                 \
  void setRenderEngineMode(SbRenderEngineMode::RenderMode mode);                  \
                                                                                  \
  void touch() override;                                                          \
  SbName getName() const override;                                                \
  void setName(const SbName& name) override;                                      \
  const char* getFileFormatName() const override;                                 \
  SbBool readInstance(SoInput* in, unsigned short flags) override;                \
  SoField* getField(const SbName& name) const override;                           \
  SoField* getEventIn(const SbName& name) const override;                         \
  SoField* getEventOut(const SbName& name) const override;                        \
  int getIsBuiltIn() const override;                                              \
  const SoFieldData* getFieldData() const override;                               \
  SoType getTypeId() const override;                                              \
  const SbRenderEngineMode& getRenderEngineMode() const override;                 \
  void setOverride(int state) override;                                           \
  SbBool isOverride() const override;                                             \
  SoNode* copy(int copyConnections = 0) const override;                           \
  SbBool affectsState() const override;                                           \
  SoNode* getAlternateRep(SoAction* action) override;                             \
  SbBool isBoundingBoxIgnoring() const override;                                  \
  void doAction(SoAction* action) override;                                       \
  void GLRender(SoGLRenderAction* action) override;                               \
  void callback(SoCallbackAction* action) override;                               \
  void getBoundingBox(SoGetBoundingBoxAction* action) override;                   \
  void getMatrix(SoGetMatrixAction* action) override;                             \
  void handleEvent(SoHandleEventAction* action) override;                         \
  void pick(SoPickAction* action) override;                                       \
  void rayPick(SoRayPickAction* action) override;                                 \
  void search(SoSearchAction* action) override;                                   \
  void write(SoWriteAction* action) override;                                     \
  void getPrimitiveCount(SoGetPrimitiveCountAction* action) override;             \
  void distribute(SoDistributeAction* action) override;                           \
  void GLRenderBelowPath(SoGLRenderAction* action) override;                      \
  void GLRenderInPath(SoGLRenderAction* action) override;                         \
  void GLRenderOffPath(SoGLRenderAction* action) override;                        \
  void grabEventsSetup() override;                                                \
  void grabEventsCleanup() override;                                              \
  int getRenderUnitID() const override;                                           \
  SoChildList* getChildren() const override;                                      \
  void internalAddChild(SoNode* child) override;                                  \
                                                                                  \
  virtual const char* getFileFormatNameDefaultImpl() const override;              \
  virtual void internalAddChildDefaultImpl(SoNode* child) override;               \
  virtual SbBool hasMultipleWriteRefsDefaultImpl() const override;                \
  virtual SbBool readInstanceDefaultImpl(SoInput* in, unsigned short flags) override;

namespace tavrel {
namespace custom {

// A forwarded call of one operation of the class Custom.
template <class Custom>
inline ForwardedCall forward(const Custom& node, const char* operation) {
  return ForwardedCall(node, Custom::kClassName, operation, Custom::s_init.getNativeResourceHandleInternal);
}

// The class-level members: the lock and the class type, made once.
template <class Custom>
inline SbThreadMutex& classLock() {
  static std::once_flag once;
  std::call_once(once, [] {
    if (Custom::classMutex == nullptr) Custom::classMutex = new SbThreadMutex(true);
    if (Custom::classTypeId == nullptr) Custom::classTypeId = new SoType(SoType::badType());
  });
  return *Custom::classMutex;
}

// Registers the class type (named Custom::kClassTypeName, derived from the
// toolkit base's type, with its own action-method index) and fills s_init.
// Every call registers the class type again; only the first one moves the
// action-method index on.
template <class Custom>
inline void initClass() {
  using Base = typename Custom::ToolkitBase;
  SbThreadMutex& lock = classLock<Custom>();
  lock.lock();
  if (Base::getClassTypeId().isBad()) Base::initClass();
  short index = static_cast<short>(SoNode::getNextActionMethodIndex());
  *Custom::classTypeId =
      SoType::createType(Base::getClassTypeId(), Custom::kClassTypeName, &Custom::createInstance, index);
  if (Custom::parentFieldData == nullptr) SoNode::incNextActionMethodIndex();
  Custom::parentFieldData = Base::getFieldDataPtr();
  lock.unlock();
  Custom::s_init.init();
}

// The constructor's part: registers the class while its type is not made.
template <class Custom>
inline void registerClassIfNeeded() {
  SbThreadMutex& lock = classLock<Custom>();
  lock.lock();  // recursive: initClass takes it again
  if (Custom::classTypeId->isBad()) Custom::initClass();
  lock.unlock();
}

// The type of one Java subclass: a new type with its own action-method index,
// or the type registered under the name.
template <class Custom>
inline SoType typeOfJavaClass(bool create, const char* name) {
  using Base = typename Custom::ToolkitBase;
  if (!create) return SoType::fromName(name);
  SbThreadMutex& lock = classLock<Custom>();
  lock.lock();
  short index = static_cast<short>(SoNode::getNextActionMethodIndex());
  SoType type = SoType::createType(Base::getClassTypeId(), name, &Custom::createInstance, index);
  SoNode::incNextActionMethodIndex();
  lock.unlock();
  return type;
}

}  // namespace custom
}  // namespace tavrel

// One forwarded action operation: the action reaches Java as the Java class of
// the same name.
#define TAVREL_FORWARD_ACTION(Class, op, ActionClass)                                                   \
  void Class::op(ActionClass* action) {                                                                 \
    auto call = tavrel::custom::forward(*this, #op);                                                    \
    call.callVoid(s_init.op, call.object("com.kestrum.corvel.actions." #ActionClass, action));         \
  }

// The object rows that take a name.
#define TAVREL_FORWARD_FIELD(Class, op)                                                                 \
  SoField* Class::op(const SbName& name) const {                                                        \
    auto call = tavrel::custom::forward(*this, #op);                                                    \
    return call.callHandle<SoField>(s_init.op, call.string(name));                                      \
  }

#define TAVREL_CUSTOM_NODE_DEFINITIONS(Class)                                                           \
  Class::Class()                                                                                        \
      : fieldData(nullptr), typeId(), renderEngineMode(), fileFormatName(nullptr), children(nullptr) {  \
    SoBaseInitializer guard(this);                                                                      \
    tavrel::custom::registerClassIfNeeded<Class>();                                                     \
    fieldData = new SoFieldData(parentFieldData != nullptr ? *parentFieldData : nullptr);              \
    typeId = SoType();                                                                                  \
    fileFormatName = new std::string();                                                                 \
    children = nullptr;                                                                                 \
  }                                                                                                     \
                                                                                                        \
  /* The Java peer reference stays as it is (see ICustomClass). */                                      \
  Class::~Class() {                                                                                     \
    delete fileFormatName;                                                                              \
    delete children;                                                                                    \
    delete fieldData;                                                                                   \
  }                                                                                                     \
                                                                                                        \
  void Class::initClass() { tavrel::custom::initClass<Class>(); }                                       \
  void Class::initType(bool create, const char* name) {                                                 \
    typeId = tavrel::custom::typeOfJavaClass<Class>(create, name);                                      \
  }                                                                                                     \
  void* Class::createInstance(SoType* type) { return ObjectHelper::getManagedObject(type->getName().getString()); } \
  SoType Class::getClassTypeId() { return classTypeId != nullptr ? *classTypeId : SoType::badType(); }  \
  void Class::setRenderEngineMode(SbRenderEngineMode::RenderMode mode) { renderEngineMode.setRenderMode(mode); } \
  void Class::initRenderEngineMode() {                                                                  \
    int mode = 0;                                                                                       \
    if (tavrel::custom::forward(*this, "initRenderEngineMode").callEnum(s_init.getRenderEngineMode, mode)) \
      setRenderEngineMode(static_cast<SbRenderEngineMode::RenderMode>(mode));                           \
  }                                                                                                     \
                                                                                                        \
  void Class::touch() { tavrel::custom::forward(*this, "touch").callVoid(s_init.touch); }              \
  SbName Class::getName() const { return tavrel::custom::forward(*this, "getName").callName(s_init.getName); } \
  void Class::setName(const SbName& name) {                                                             \
    auto call = tavrel::custom::forward(*this, "setName");                                              \
    call.callVoid(s_init.setName, call.string(name));                                                   \
  }                                                                                                     \
  const char* Class::getFileFormatName() const {                                                        \
    return tavrel::custom::forward(*this, "getFileFormatName")                                          \
        .callFileFormatName(s_init.getFileFormatName, *fileFormatName);                                 \
  }                                                                                                     \
  SbBool Class::readInstance(SoInput* in, unsigned short flags) {                                       \
    auto call = tavrel::custom::forward(*this, "readInstance");                                         \
    return call.callBoolean(s_init.readInstance, call.object("com.kestrum.corvel.SoInput", in),         \
                            static_cast<jshort>(flags));                                                \
  }                                                                                                     \
  TAVREL_FORWARD_FIELD(Class, getField)                                                                 \
  TAVREL_FORWARD_FIELD(Class, getEventIn)                                                               \
  TAVREL_FORWARD_FIELD(Class, getEventOut)                                                              \
  int Class::getIsBuiltIn() const { return isBuiltIn; }                                                 \
  const SoFieldData* Class::getFieldData() const { return fieldData; }                                  \
  SoType Class::getTypeId() const { return typeId; }                                                    \
  const SbRenderEngineMode& Class::getRenderEngineMode() const { return renderEngineMode; }             \
  void Class::setOverride(int state) {                                                                  \
    tavrel::custom::forward(*this, "setOverride").callVoid(s_init.setOverride, tavrel::toJBoolean(state)); \
  }                                                                                                     \
  SbBool Class::isOverride() const {                                                                    \
    return tavrel::custom::forward(*this, "isOverride").callBoolean(s_init.isOverride);                 \
  }                                                                                                     \
  SoNode* Class::copy(int copyConnections) const {                                                      \
    return tavrel::custom::forward(*this, "copy")                                                       \
        .callHandle<SoNode>(s_init.copy, tavrel::toJBoolean(copyConnections));                          \
  }                                                                                                     \
  SbBool Class::affectsState() const {                                                                  \
    return tavrel::custom::forward(*this, "affectsState").callBoolean(s_init.affectsState);             \
  }                                                                                                     \
  SoNode* Class::getAlternateRep(SoAction* action) {                                                    \
    auto call = tavrel::custom::forward(*this, "getAlternateRep");                                      \
    return call.callHandle<SoNode>(s_init.getAlternateRep,                                              \
                                   call.object("com.kestrum.corvel.actions.SoAction", action));         \
  }                                                                                                     \
  SbBool Class::isBoundingBoxIgnoring() const {                                                         \
    return tavrel::custom::forward(*this, "isBoundingBoxIgnoring").callBoolean(s_init.isBoundingBoxIgnoring); \
  }                                                                                                     \
  TAVREL_FORWARD_ACTION(Class, doAction, SoAction)                                                      \
  TAVREL_FORWARD_ACTION(Class, GLRender, SoGLRenderAction)                                              \
  TAVREL_FORWARD_ACTION(Class, callback, SoCallbackAction)                                              \
  TAVREL_FORWARD_ACTION(Class, getBoundingBox, SoGetBoundingBoxAction)                                  \
  TAVREL_FORWARD_ACTION(Class, getMatrix, SoGetMatrixAction)                                            \
  TAVREL_FORWARD_ACTION(Class, handleEvent, SoHandleEventAction)                                        \
  TAVREL_FORWARD_ACTION(Class, pick, SoPickAction)                                                      \
  TAVREL_FORWARD_ACTION(Class, rayPick, SoRayPickAction)                                                \
  TAVREL_FORWARD_ACTION(Class, search, SoSearchAction)                                                  \
  TAVREL_FORWARD_ACTION(Class, write, SoWriteAction)                                                    \
  TAVREL_FORWARD_ACTION(Class, getPrimitiveCount, SoGetPrimitiveCountAction)                            \
  TAVREL_FORWARD_ACTION(Class, distribute, SoDistributeAction)                                          \
  TAVREL_FORWARD_ACTION(Class, GLRenderBelowPath, SoGLRenderAction)                                     \
  TAVREL_FORWARD_ACTION(Class, GLRenderInPath, SoGLRenderAction)                                        \
  TAVREL_FORWARD_ACTION(Class, GLRenderOffPath, SoGLRenderAction)                                       \
  void Class::grabEventsSetup() { tavrel::custom::forward(*this, "grabEventsSetup").callVoid(s_init.grabEventsSetup); } \
  void Class::grabEventsCleanup() {                                                                     \
    tavrel::custom::forward(*this, "grabEventsCleanup").callVoid(s_init.grabEventsCleanup);             \
  }                                                                                                     \
  int Class::getRenderUnitID() const {                                                                  \
    return tavrel::custom::forward(*this, "getRenderUnitID").callInt(s_init.getRenderUnitID);           \
  }                                                                                                     \
  SoChildList* Class::getChildren() const { return children; }                                         \
  void Class::internalAddChild(SoNode* child) {                                                         \
    auto call = tavrel::custom::forward(*this, "internalAddChild");                                     \
    call.callVoid(s_init.internalAddChild, call.object("com.kestrum.corvel.nodes.SoNode", child));      \
  }                                                                                                     \
                                                                                                        \
  /* The toolkit's behaviour, for Java overrides that call their superclass. */                         \
  const char* Class::getFileFormatNameDefaultImpl() const { return typeId.getName().getString(); }      \
  void Class::internalAddChildDefaultImpl(SoNode* child) {                                              \
    if (children == nullptr) children = new SoChildList(this, 0);                                       \
    SoNode::internalAddChild(child);                                                                    \
  }                                                                                                     \
  SbBool Class::hasMultipleWriteRefsDefaultImpl() const { return hasMultipleWriteRefs(); }              \
  SbBool Class::readInstanceDefaultImpl(SoInput* in, unsigned short flags) {                            \
    return SoFieldContainer::readInstance(in, flags);                                                   \
  }
