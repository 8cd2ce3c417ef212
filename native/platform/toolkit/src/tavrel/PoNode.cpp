#include <Tavrel/PoCellFilterElement.h>
#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoCellFilter.h>
#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoNode.h>
#include <Tavrel/PoPropertyNode.h>

#include "../common/CachedCast.h"

SO_NODE_ABSTRACT_SOURCE(PoNode, SoNode, "PoNode")

PoNode::PoNode() = default;
PoNode::~PoNode() = default;

namespace {
// A cell filter becomes the state's current one, a mesh node's mesh the
// state's current mesh (see PoNode.h).
void enterState(PoNode* node, SoAction* action) {
  if (const auto* filter = tk::cachedCast<const PoCellFilter>(node))
    filter->makeCurrent(action);
  else if (const auto* property = tk::cachedCast<const PoMeshProperty>(node))
    property->makeCurrent(action);
  else if (const auto* setter = tk::cachedCast<const PoStateSetter>(node))
    setter->makeCurrent(action);
}
}  // namespace

// Each records "PoNode::<op>(action)", lets a cell filter or a mesh node enter the state and
// does SoNode's work.
#define PO_NODE_ACTION(op, ActionClass)                                 \
  void PoNode::op(ActionClass* action) {                                \
    CallJournal::record("PoNode::" #op, static_cast<const void*>(action)); \
    enterState(this, action);                                           \
    SoNode::op(action);                                                 \
  }

PO_NODE_ACTION(GLRender, SoGLRenderAction)
PO_NODE_ACTION(callback, SoCallbackAction)
PO_NODE_ACTION(getBoundingBox, SoGetBoundingBoxAction)
PO_NODE_ACTION(getMatrix, SoGetMatrixAction)
PO_NODE_ACTION(handleEvent, SoHandleEventAction)
PO_NODE_ACTION(pick, SoPickAction)
PO_NODE_ACTION(search, SoSearchAction)
PO_NODE_ACTION(write, SoWriteAction)
PO_NODE_ACTION(getPrimitiveCount, SoGetPrimitiveCountAction)

// --- PoCellFilter ---------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(PoCellFilter, PoNode, "PoCellFilter")

PoCellFilter::PoCellFilter() = default;
PoCellFilter::~PoCellFilter() = default;

void PoCellFilter::doAction(SoAction* action) {
  CallJournal::record("PoCellFilter::doAction", static_cast<const void*>(action));
  makeCurrent(action);
  traverseChildren(action);
}

void PoCellFilter::write(SoWriteAction* action) {
  CallJournal::record("PoCellFilter::write", static_cast<const void*>(action));
}

std::vector<int> PoCellFilter::selectCells(const PoCellFilter* filter, int numCells, const float* values) {
  std::vector<int> accepted;
  for (int i = 0; i < numCells; ++i)
    if (filter == nullptr || filter->acceptCell(i, values ? values[i] : 0.0f)) accepted.push_back(i);
  return accepted;
}

void PoCellFilter::makeCurrent(SoAction* action) const {
  if (SoState* state = action != nullptr ? action->getState() : nullptr) PoCellFilterElement::setValue(state, const_cast<PoCellFilter*>(this));
}
