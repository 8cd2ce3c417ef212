#include <Corvel/SoAction.h>
#include <Corvel/SoSeparator.h>
#include <Corvel/SoState.h>

SO_NODE_SOURCE(SoSeparator, SoGroup, "Separator")

SoSeparator::SoSeparator() { initClass(); }
SoSeparator::~SoSeparator() = default;

void SoSeparator::traverseScoped(SoAction* action) {
  SoState* state = action->getState();
  if (state != nullptr) state->push();
  traverseChildren(action);
  // The state is the same after the children: an apply inside them made and
  // dropped its own.
  if (state != nullptr) state->pop();
}

void SoSeparator::doAction(SoAction* action) { traverseScoped(action); }
void SoSeparator::GLRender(SoGLRenderAction* action) { traverseScoped(action); }
void SoSeparator::callback(SoCallbackAction* action) { traverseScoped(action); }
void SoSeparator::getBoundingBox(SoGetBoundingBoxAction* action) { traverseScoped(action); }
void SoSeparator::pick(SoPickAction* action) { traverseScoped(action); }
void SoSeparator::search(SoSearchAction* action) { traverseScoped(action); }
void SoSeparator::getPrimitiveCount(SoGetPrimitiveCountAction* action) { traverseScoped(action); }
