#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoBase.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>

namespace {
SoType actionType;
}

void SoAction::initClass() {
  tk::ClassRegistrationLock lock;
  if (actionType.isBad()) actionType = SoType::createType(SoType::badType(), "Action");
}

SoType SoAction::getClassTypeId() {
  initClass();
  return actionType;
}

SoType SoAction::getTypeId() const { return getClassTypeId(); }

SoAction::~SoAction() { delete state; }

void SoAction::apply(SoNode* node) {
  CallJournal::record("SoAction::apply", getTypeId(), static_cast<const void*>(node));
  SoState* outer = state;
  if (outer == nullptr) beginApply();
  state = new SoState(this);
  node->ref();
  traverse(node);
  if (outer == nullptr) endApply();
  // The state goes first: it may hold a reference on the node itself.
  delete state;
  state = outer;
  node->unrefNoDelete();
}

void SoAction::traverse(SoNode* node) {
  countNode();
  node->doAction(this);
}

SO_ACTION_SOURCE(SoCallbackAction, SoAction, "CallbackAction", callback)
SO_ACTION_SOURCE(SoGetBoundingBoxAction, SoAction, "GetBoundingBoxAction", getBoundingBox)
SO_ACTION_SOURCE(SoGetMatrixAction, SoAction, "GetMatrixAction", getMatrix)
SO_ACTION_SOURCE(SoHandleEventAction, SoAction, "HandleEventAction", handleEvent)
SO_ACTION_SOURCE(SoPickAction, SoAction, "PickAction", pick)
SO_ACTION_SOURCE(SoRayPickAction, SoPickAction, "RayPickAction", rayPick)
SO_ACTION_SOURCE(SoSearchAction, SoAction, "SearchAction", search)
SO_ACTION_SOURCE(SoWriteAction, SoAction, "WriteAction", write)
SO_ACTION_SOURCE(SoGetPrimitiveCountAction, SoAction, "GetPrimitiveCountAction", getPrimitiveCount)
SO_ACTION_SOURCE(SoDistributeAction, SoAction, "DistributeAction", distribute)
