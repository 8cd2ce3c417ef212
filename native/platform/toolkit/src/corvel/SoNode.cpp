#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoBaseKit.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoNode.h>

#include <mutex>

namespace {
int nextActionMethodIndex = 0;
}

namespace tk {
int takeNodeActionMethodIndex() {
  ClassRegistrationLock lock;
  int index = nextActionMethodIndex;
  ++nextActionMethodIndex;
  return index;
}
}  // namespace tk

// --- SoNode type -------------------------------------------------------------

SoType SoNode::s_classTypeId;
const SoFieldData* SoNode::classFieldData = nullptr;

void SoNode::initClass() {
  tk::ClassRegistrationLock lock;
  if (!s_classTypeId.isBad()) return;
  SoFieldContainer::initClass();
  s_classTypeId = SoType::createType(SoFieldContainer::getClassTypeId(), "Node", nullptr,
                                     static_cast<short>(tk::takeNodeActionMethodIndex()));
  classFieldData = new SoFieldData();
}

SoType SoNode::getClassTypeId() {
  CallJournal::record("SoNode::getClassTypeId");
  return getClassTypeIdUnjournaled();
}

SoType SoNode::getClassTypeIdUnjournaled() {
  initClass();
  return s_classTypeId;
}

SoType SoNode::getTypeId() const { return s_classTypeId; }

int SoNode::getNextActionMethodIndex() {
  CallJournal::record("SoNode::getNextActionMethodIndex");
  tk::ClassRegistrationLock lock;
  return nextActionMethodIndex;
}

void SoNode::incNextActionMethodIndex() {
  CallJournal::record("SoNode::incNextActionMethodIndex");
  tk::ClassRegistrationLock lock;
  ++nextActionMethodIndex;
}

// --- SoNode behaviour ----------------------------------------------------------

SoNode::SoNode() = default;
SoNode::~SoNode() = default;

const SbRenderEngineMode& SoNode::getRenderEngineMode() const { return renderEngineMode; }

void SoNode::setOverride(int state) {
  CallJournal::record("SoNode::setOverride", state);
  overrideFlag = state ? 1 : 0;
}

SbBool SoNode::isOverride() const { return overrideFlag; }

SoNode* SoNode::copy(int copyConnections) const {
  CallJournal::record("SoNode::copy", copyConnections);
  return static_cast<SoNode*>(getTypeId().createInstance());
}

SbBool SoNode::affectsState() const { return 1; }
SoNode* SoNode::getAlternateRep(SoAction*) { return nullptr; }
SbBool SoNode::isBoundingBoxIgnoring() const { return 0; }

void SoNode::traverseChildren(SoAction* action) {
  if (SoChildList* list = getChildren())
    for (int i = 0; i < list->getLength(); ++i) action->traverse((*list)[i]);
}

void SoNode::doAction(SoAction* action) { traverseChildren(action); }
void SoNode::GLRender(SoGLRenderAction* action) { traverseChildren(action); }
void SoNode::callback(SoCallbackAction* action) { traverseChildren(action); }
void SoNode::getBoundingBox(SoGetBoundingBoxAction* action) { traverseChildren(action); }
void SoNode::getMatrix(SoGetMatrixAction* action) { traverseChildren(action); }
void SoNode::handleEvent(SoHandleEventAction* action) { traverseChildren(action); }
void SoNode::pick(SoPickAction* action) { traverseChildren(action); }
void SoNode::rayPick(SoRayPickAction* action) { pick(action); }
void SoNode::search(SoSearchAction* action) { traverseChildren(action); }
void SoNode::write(SoWriteAction* action) {
  const char* name = getFileFormatName();
  std::string& out = action->getOutput();
  out += name ? name : "";
  SoChildList* list = getChildren();
  if (list == nullptr || list->getLength() == 0) {
    out += " {}\n";
    return;
  }
  out += " {\n";
  traverseChildren(action);
  out += "}\n";
}
void SoNode::getPrimitiveCount(SoGetPrimitiveCountAction* action) { traverseChildren(action); }
void SoNode::distribute(SoDistributeAction* action) { traverseChildren(action); }
void SoNode::GLRenderBelowPath(SoGLRenderAction* action) { GLRender(action); }
void SoNode::GLRenderInPath(SoGLRenderAction* action) { GLRender(action); }
void SoNode::GLRenderOffPath(SoGLRenderAction* action) {}
void SoNode::grabEventsSetup() {}
void SoNode::grabEventsCleanup() {}
int SoNode::getRenderUnitID() const { return 0; }
SoChildList* SoNode::getChildren() const { return nullptr; }

void SoNode::internalAddChild(SoNode* child) {
  CallJournal::record("SoNode::internalAddChild", static_cast<const void*>(child));
  if (SoChildList* list = getChildren()) list->append(child);
}

SbBool SoNode::readInstance(SoInput* in, unsigned short flags) {
  return SoFieldContainer::readInstance(in, flags);
}

// --- children ----------------------------------------------------------------

SoChildList::SoChildList(SoNode* parent, int initSize) : parent(parent) {
  CallJournal::record("SoChildList::SoChildList", static_cast<const void*>(parent), initSize);
  children.reserve(initSize > 0 ? initSize : 0);
}

SoChildList::~SoChildList() {
  for (SoNode* c : children) c->unref();
}

void SoChildList::append(SoNode* child) {
  child->ref();
  children.push_back(child);
}

// --- kits --------------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(SoBaseKit, SoNode, "BaseKit")

SoBaseKit::SoBaseKit() = default;
SoBaseKit::~SoBaseKit() = default;

const SoNodekitCatalog* SoBaseKit::getClassNodekitCatalog() {
  CallJournal::record("SoBaseKit::getClassNodekitCatalog");
  return getClassNodekitCatalogUnjournaled();
}

const SoNodekitCatalog* SoBaseKit::getClassNodekitCatalogUnjournaled() {
  static const SoNodekitCatalog* catalog =
      new SoNodekitCatalog(getClassTypeIdUnjournaled(), {"this"});
  return catalog;
}

const SoNodekitCatalog* SoBaseKit::getNodekitCatalog() const { return getClassNodekitCatalogUnjournaled(); }
