// A group that scopes the traversal state: every action operation opens a
// depth of the state (SoState::push) before traversing the children and
// closes it (SoState::pop) after, so that elements set by the children are
// popped when the separator is left and the values from before come back.
// Outside apply (no state) it traverses the children like a group.
#pragma once

#include <Corvel/SoGroup.h>

class SoSeparator : public SoGroup {
  SO_NODE_HEADER(SoSeparator)

 public:
  SoSeparator();
  void doAction(SoAction* action) override;
  void GLRender(SoGLRenderAction* action) override;
  void callback(SoCallbackAction* action) override;
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  void pick(SoPickAction* action) override;
  void search(SoSearchAction* action) override;
  void getPrimitiveCount(SoGetPrimitiveCountAction* action) override;

 protected:
  ~SoSeparator() override;

 private:
  void traverseScoped(SoAction* action);
};
