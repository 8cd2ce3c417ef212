// Base of every scene-graph node.
//
// Each action calls the node's operation of the same kind (an SoGLRenderAction
// calls GLRender, an SoCallbackAction callback, ...). The defaults here: every
// action operation traverses the node's children, if it has any; doAction does
// the same for actions without their own operation. write appends the node's
// file format name and then, in braces, its children ("Name {}" without any);
// a null file format name writes as the empty name.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbRenderEngineMode.h>
#include <Corvel/SoFieldContainer.h>
#include <Corvel/SoSubClass.h>

class SoAction;
class SoGLRenderAction;
class SoCallbackAction;
class SoGetBoundingBoxAction;
class SoGetMatrixAction;
class SoHandleEventAction;
class SoPickAction;
class SoRayPickAction;
class SoSearchAction;
class SoWriteAction;
class SoGetPrimitiveCountAction;
class SoDistributeAction;
class SoChildList;

class SoNode : public SoFieldContainer {
  SO_NODE_HEADER(SoNode)

 public:
  // The action-method index the next node class will take, and the step to
  // the following one.
  static int getNextActionMethodIndex();
  static void incNextActionMethodIndex();

  // Virtual operations that follow those of SoFieldContainer, in table order.
  virtual const SbRenderEngineMode& getRenderEngineMode() const;
  virtual void setOverride(int state);
  virtual SbBool isOverride() const;
  virtual SoNode* copy(int copyConnections = 0) const;
  virtual SbBool affectsState() const;
  virtual SoNode* getAlternateRep(SoAction* action);
  virtual SbBool isBoundingBoxIgnoring() const;
  virtual void doAction(SoAction* action);
  virtual void GLRender(SoGLRenderAction* action);
  virtual void callback(SoCallbackAction* action);
  virtual void getBoundingBox(SoGetBoundingBoxAction* action);
  virtual void getMatrix(SoGetMatrixAction* action);
  virtual void handleEvent(SoHandleEventAction* action);
  virtual void pick(SoPickAction* action);
  virtual void rayPick(SoRayPickAction* action);
  virtual void search(SoSearchAction* action);
  virtual void write(SoWriteAction* action);
  virtual void getPrimitiveCount(SoGetPrimitiveCountAction* action);
  virtual void distribute(SoDistributeAction* action);
  virtual void GLRenderBelowPath(SoGLRenderAction* action);
  virtual void GLRenderInPath(SoGLRenderAction* action);
  virtual void GLRenderOffPath(SoGLRenderAction* action);
  virtual void grabEventsSetup();
  virtual void grabEventsCleanup();
  virtual int getRenderUnitID() const;
  virtual SoChildList* getChildren() const;
  virtual void internalAddChild(SoNode* child);

  SbBool readInstance(SoInput* in, unsigned short flags) override;

 protected:
  SoNode();
  ~SoNode() override;

  // Traverses the children (if any) with the action.
  TAVREL_STANDIN_ONLY void traverseChildren(SoAction* action);

 private:
  SbRenderEngineMode renderEngineMode;
  int overrideFlag = 0;
};
