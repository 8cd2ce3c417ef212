// Base of the extension's scene-graph nodes. Abstract: doAction is pure.
//
// The action operations below are the extension's own: each records its call
// and then does what SoNode does (traverse the node's children, or, for
// write, write the node). All other operations are SoNode's.
//
// A cell filter (PoCellFilter) traversed by one of these operations becomes
// the current cell filter of the action's state (PoCellFilterElement)
// before its children are traversed, so that the representations traversed
// after it ask it about their cells. PoNode's operations are where every filter comes,
// whatever class or language implements it (the binding runs PoNode's own
// operation for a filter written in Java), so PoCellFilter does not override
// them. Likewise a mesh node (PoMeshProperty) traversed by one of these
// operations makes its mesh the state's current mesh (SoState::setMesh), and an
// attribute property node (PoStateSetter, see PoPropertyNode.h) makes itself
// the current node of its kind.
// Outside apply an action has no state: nothing is set then.
#pragma once

#include <Corvel/SoNode.h>

class PoNode : public SoNode {
  SO_NODE_HEADER(PoNode)

 public:
  void doAction(SoAction* action) override = 0;
  void GLRender(SoGLRenderAction* action) override;
  void callback(SoCallbackAction* action) override;
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  void getMatrix(SoGetMatrixAction* action) override;
  void handleEvent(SoHandleEventAction* action) override;
  void pick(SoPickAction* action) override;
  void search(SoSearchAction* action) override;
  void write(SoWriteAction* action) override;
  void getPrimitiveCount(SoGetPrimitiveCountAction* action) override;

 protected:
  PoNode();
  ~PoNode() override;
};
