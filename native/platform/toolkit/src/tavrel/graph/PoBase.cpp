// The graph node base and the abstract graph classes below it, and the
// rectangle.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PoBase.h>
#include <Tavrel/PoBaseAxis.h>
#include <Tavrel/PoChart.h>
#include <Tavrel/PoDrawing.h>
#include <Tavrel/PoQuorvex.h>
#include <Tavrel/PoRectangle.h>

#include <Corvel/SoAction.h>

#include <atomic>

#include "../../common/CachedCast.h"

// --- types and catalogs --------------------------------------------------------

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoBase, SoBaseKit, "PoBase", {"topSeparator", "appearance", "transform"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoQuorvex, PoBase, "PoQuorvex", {"pointSet"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoChart, PoBase, "PoChart", {"chartParts"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoBaseAxis, PoBase, "PoBaseAxis", {"axes"})
PO_GRAPH_KIT_SOURCE(PoRectangle, PoQuorvex, "PoRectangle", {"outline"})

PoQuorvex::PoQuorvex() = default;
PoQuorvex::~PoQuorvex() = default;
PoChart::PoChart() = default;
PoChart::~PoChart() = default;
PoBaseAxis::PoBaseAxis() = default;
PoBaseAxis::~PoBaseAxis() = default;

// --- process-wide values ----------------------------------------------------------

namespace {
std::atomic<int> writeFormat{PoBase::FOLDNODEWRITEFORMAT};
std::atomic<int> textType{PoBase::SOTEXT3};
std::atomic<int> vrml2Mode{0};
}  // namespace

void PoBase::setNodeWriteFormat(NodeWriteFormat format) {
  CallJournal::record("PoBase::setNodeWriteFormat", static_cast<int>(format));
  writeFormat = format;
}

PoBase::NodeWriteFormat PoBase::getNodeWriteFormat() {
  CallJournal::record("PoBase::getNodeWriteFormat");
  return static_cast<NodeWriteFormat>(writeFormat.load());
}

void PoBase::setTextType(TextType type) {
  CallJournal::record("PoBase::setTextType", static_cast<int>(type));
  textType = type;
}

PoBase::TextType PoBase::getTextType() {
  CallJournal::record("PoBase::getTextType");
  return static_cast<TextType>(textType.load());
}

void PoBase::setVRML2Mode(int flag) {
  CallJournal::record("PoBase::setVRML2Mode", flag);
  vrml2Mode = flag;
}

SbBool PoBase::isVRML2Mode() {
  CallJournal::record("PoBase::isVRML2Mode");
  return vrml2Mode.load();
}

// --- the node ------------------------------------------------------------------------

PoBase::PoBase() = default;
PoBase::~PoBase() = default;

void PoBase::setDomain(PbDomain* newDomain) {
  CallJournal::record("PoBase::setDomain", static_cast<const void*>(newDomain));
  domain = newDomain;
  changed();
}

PbDomain* PoBase::getDomain() const {
  CallJournal::record("PoBase::getDomain");
  return domain;
}

void PoBase::touchKit() {
  CallJournal::record("PoBase::touchKit");
  changed();
}

void PoBase::rebuild() { CallJournal::record("PoBase::rebuild"); }

void PoBase::addPreRebuildCallback(PoRebuildCB* function, void* userData) {
  CallJournal::record("PoBase::addPreRebuildCallback", journalFn(function), userData);
  if (function == nullptr) {
    preCallbacks.clear();
  } else {
    preCallbacks.push_back(Callback{function, userData});
  }
}

void PoBase::addPostRebuildCallback(PoRebuildCB* function, void* userData) {
  CallJournal::record("PoBase::addPostRebuildCallback", journalFn(function), userData);
  if (function == nullptr) {
    postCallbacks.clear();
  } else {
    postCallbacks.push_back(Callback{function, userData});
  }
}

void PoBase::changed() {
  modified = 1;
  if (updateMethod == UPDATEMETHODIMMEDIATE) rebuild();
}

void PoBase::build() {}

namespace {
// Clears a flag when the scope ends, also when a callback throws.
struct Reset {
  bool& flag;
  ~Reset() { flag = false; }
};
}  // namespace

void PoBase::runRebuild() {
  if (rebuilding) {
    modified = 1;
    return;
  }
  rebuilding = true;
  Reset reset{rebuilding};
  // Copies: a callback may add or remove callbacks of this node.
  const std::vector<Callback> pre = preCallbacks;
  const std::vector<Callback> post = postCallbacks;
  for (const Callback& c : pre) c.function(c.userData, this);
  build();
  ++buildCount;
  domainRevision = domain != nullptr ? domain->getRevision() : 0;
  built = 1;
  modified = 0;
  for (const Callback& c : post) c.function(c.userData, this);
}

bool PoBase::attributesChanged() const {
  return domain != nullptr && domain->isConnectionEnabled() && domain->getRevision() != domainRevision;
}

void PoBase::rebuildForTraversal() {
  if (attributesChanged()) modified = 1;
  if (modified) rebuild();
}

void PoBase::draw(SoGLRenderAction* action) {
  if (const auto* drawing = tk::cachedCast<const PoDrawing>(this)) drawing->drawInto(action);
}

void PoBase::GLRender(SoGLRenderAction* action) {
  rebuildForTraversal();
  draw(action);
  SoBaseKit::GLRender(action);
}

void PoBase::callback(SoCallbackAction* action) {
  rebuildForTraversal();
  SoBaseKit::callback(action);
}

void PoBase::getBoundingBox(SoGetBoundingBoxAction* action) {
  rebuildForTraversal();
  SoBaseKit::getBoundingBox(action);
}

// --- PoRectangle ---------------------------------------------------------------------

PoRectangle::PoRectangle() { CallJournal::record("PoRectangle::PoRectangle"); }

void PoRectangle::init(const SbVec2f& c1, const SbVec2f& c2) {
  CallJournal::record("PoRectangle::init", c1, c2);
  corner1 = c1;
  corner2 = c2;
}

PoRectangle::~PoRectangle() = default;

void PoRectangle::rebuild() {
  CallJournal::record("PoRectangle::rebuild");
  runRebuild();
}

void PoRectangle::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoRectangle::build() {
  CallJournal::record("PoRectangle::build");
  const SbVec2f& a = corner1;
  const SbVec2f& b = corner2;
  outline = {SbVec3f(a[0], a[1], 0), SbVec3f(b[0], a[1], 0), SbVec3f(b[0], b[1], 0), SbVec3f(a[0], b[1], 0),
             SbVec3f(a[0], a[1], 0)};
  if (const PbDomain* d = domainInUse()) {
    for (SbVec3f& p : outline) d->matrix().multVecMatrix(p, p);
  }
}
