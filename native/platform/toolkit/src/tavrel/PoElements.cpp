// The extension's thirteen elements (PoElementSubClass.h).

#include <Corvel/CallJournal.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Corvel/SoSubClass.h>
#include <Tavrel/PbMesh1D.h>
#include <Tavrel/PbMesh2D.h>
#include <Tavrel/PbMesh3D.h>
#include <Tavrel/PoBevelEdgeElement.h>
#include <Tavrel/PoCellFilter.h>
#include <Tavrel/PoCellFilterElement.h>
#include <Tavrel/PoDataMappingElement.h>
#include <Tavrel/PoDateFormatMappingElement.h>
#include <Tavrel/PoDomainElement.h>
#include <Tavrel/PoIsovaluesListElement.h>
#include <Tavrel/PoLabelHintsElement.h>
#include <Tavrel/PoMesh1DFilterElement.h>
#include <Tavrel/PoMesh1DHintsElement.h>
#include <Tavrel/PoMeshElement.h>
#include <Tavrel/PoMiscTextAttrElement.h>
#include <Tavrel/PoNumericDisplayFormatElement.h>
#include <Tavrel/PoProfileElement.h>
#include "../common/CachedCast.h"

#include <cmath>

namespace {
const void* addr(const void* p) { return p; }
}  // namespace

// Type, stack index and construction of one element class.
#define PO_ELEMENT_SOURCE(className)                                                                   \
  SoType className::s_classTypeId;                                                                     \
  int className::s_classStackIndex = -1;                                                               \
  void className::initClass() {                                                                        \
    tk::ClassRegistrationLock lock_;                                                                   \
    if (!s_classTypeId.isBad()) return;                                                                \
    SoReplacedElement::initClass();                                                                    \
    s_classTypeId = SoType::createType(SoReplacedElement::getClassTypeId(), #className,                \
                                       [](SoType*) -> void* { return static_cast<SoElement*>(new className); }); \
    s_classStackIndex = SoElement::makeStackIndex(s_classTypeId);                                      \
  }                                                                                                    \
  SoType className::getClassTypeId() {                                                                 \
    CallJournal::record(#className "::getClassTypeId");                                                \
    initClass();                                                                                       \
    return s_classTypeId;                                                                              \
  }                                                                                                    \
  int className::getClassStackIndex() {                                                                \
    CallJournal::record(#className "::getClassStackIndex");                                            \
    return s_classStackIndex;                                                                          \
  }                                                                                                    \
  className::className() {                                                                             \
    initClass();                                                                                       \
    setTypeId(s_classTypeId);                                                                          \
    setStackIndex(s_classStackIndex);                                                                  \
  }                                                                                                    \
  className::~className() = default;                                                                   \
  int className::registeredStackIndex() {                                                                        \
    if (s_classStackIndex < 0) initClass();                                                            \
    return s_classStackIndex;                                                                          \
  }                                                                                                    \
  static tk::ClassInitializerEntry className##_initializer(&className::initClass);

// An element whose value is one object kept by address.
#define PO_POINTER_ELEMENT_SOURCE(className, ValueType)                                                \
  PO_ELEMENT_SOURCE(className)                                                                         \
  void className::init(SoState* state) {                                                               \
    SoReplacedElement::init(state);                                                                    \
    value = nullptr;                                                                                   \
  }                                                                                                    \
  void className::set(SoState* state, SoNode* node, const ValueType* v) {                              \
    CallJournal::record(#className "::set", addr(state), addr(node), addr(v));                         \
    setValue(state, node, v);                                                                          \
  }                                                                                                    \
  const ValueType* className::get(SoState* state) {                                                    \
    CallJournal::record(#className "::get", addr(state));                                              \
    return current(state);                                                                             \
  }                                                                                                    \
  void className::setValue(SoState* state, SoNode* node, const ValueType* v) {                         \
    if (auto* e = static_cast<className*>(SoReplacedElement::getElement(state, registeredStackIndex(), node))) \
      e->value = v;                                                                                    \
  }                                                                                                    \
  const ValueType* className::current(SoState* state) {                                                \
    auto* e = static_cast<const className*>(SoElement::getConstElement(state, registeredStackIndex()));     \
    return e != nullptr ? e->value : nullptr;                                                          \
  }

PO_POINTER_ELEMENT_SOURCE(PoDataMappingElement, PbDataMapping)
PO_POINTER_ELEMENT_SOURCE(PoDateFormatMappingElement, PbDateFormatMapping)
PO_POINTER_ELEMENT_SOURCE(PoDomainElement, PbDomain)
PO_POINTER_ELEMENT_SOURCE(PoIsovaluesListElement, PbIsovaluesList)
PO_POINTER_ELEMENT_SOURCE(PoMiscTextAttrElement, PbMiscTextAttr)
PO_POINTER_ELEMENT_SOURCE(PoNumericDisplayFormatElement, PbNumericDisplayFormat)
PO_POINTER_ELEMENT_SOURCE(PoMesh1DFilterElement, PoMesh1DFilter)
PO_POINTER_ELEMENT_SOURCE(PoProfileElement, PoProfile)

// The elements are found by the stack index their class created; the state
// makes them with the type enabled there, which derives from the class (a
// Java element, for instance), so the casts below hold.

// --- bevel edge ------------------------------------------------------------------------

PO_ELEMENT_SOURCE(PoBevelEdgeElement)

void PoBevelEdgeElement::init(SoState* state) {
  SoReplacedElement::init(state);
  on = 0;
  angle = 0;
  radiusFlag = PoBevelEdge::ABSOLUTERADIUS;
  radius = 0;
}

void PoBevelEdgeElement::set(SoState* state, SoNode* node, int o, float a, PoBevelEdge::RadiusFlag flag, float r) {
  CallJournal::record("PoBevelEdgeElement::set", addr(state), addr(node), o, a, static_cast<int>(flag), r);
  setValue(state, node, o, a, flag, r);
}

void PoBevelEdgeElement::setValue(SoState* state, SoNode* node, int o, float a, PoBevelEdge::RadiusFlag flag,
                                  float r) {
  auto* e = static_cast<PoBevelEdgeElement*>(SoReplacedElement::getElement(state, registeredStackIndex(), node));
  if (e == nullptr) return;
  e->on = o;
  e->angle = a;
  e->radiusFlag = flag;
  e->radius = r;
}

const PoBevelEdgeElement* PoBevelEdgeElement::current(SoState* state) {
  return static_cast<const PoBevelEdgeElement*>(SoElement::getConstElement(state, registeredStackIndex()));
}

// --- cell filter -----------------------------------------------------------------------

PO_ELEMENT_SOURCE(PoCellFilterElement)

void PoCellFilterElement::init(SoState* state) {
  SoReplacedElement::init(state);
  filter = nullptr;
}

void PoCellFilterElement::set(SoState* state, SoNode* node) {
  CallJournal::record("PoCellFilterElement::set", addr(state), addr(node));
  setValue(state, node);
}

const PoCellFilter* PoCellFilterElement::get(SoState* state) {
  CallJournal::record("PoCellFilterElement::get", addr(state));
  return current(state);
}

void PoCellFilterElement::setValue(SoState* state, SoNode* node) {
  auto* e = static_cast<PoCellFilterElement*>(SoReplacedElement::getElement(state, registeredStackIndex(), node));
  if (e != nullptr) e->filter = tk::cachedCast<const PoCellFilter>(node);
}

const PoCellFilter* PoCellFilterElement::current(SoState* state) {
  auto* e = static_cast<const PoCellFilterElement*>(SoElement::getConstElement(state, registeredStackIndex()));
  return e != nullptr ? e->filter : nullptr;
}

// --- label hints -----------------------------------------------------------------------

PO_ELEMENT_SOURCE(PoLabelHintsElement)

void PoLabelHintsElement::init(SoState* state) {
  SoReplacedElement::init(state);
  labelPath = PoLabelHints::PATHRIGHT;
  justification = PoLabelHints::LEFT;
  text.clear();
  first = 0;
  second = 0;
}

void PoLabelHintsElement::set(SoState* state, SoNode* node, PoLabelHints::LabelPath path,
                              PoLabelHints::Justification just, const char* t, int f, int s) {
  CallJournal::record("PoLabelHintsElement::set", addr(state), addr(node), static_cast<int>(path),
                      static_cast<int>(just), t, f, s);
  setValue(state, node, path, just, t, f, s);
}

void PoLabelHintsElement::setValue(SoState* state, SoNode* node, PoLabelHints::LabelPath path,
                                   PoLabelHints::Justification just, const char* t, int f, int s) {
  auto* e = static_cast<PoLabelHintsElement*>(SoReplacedElement::getElement(state, registeredStackIndex(), node));
  if (e == nullptr) return;
  e->labelPath = path;
  e->justification = just;
  e->text = t != nullptr ? t : "";
  e->first = f;
  e->second = s;
}

const PoLabelHintsElement* PoLabelHintsElement::current(SoState* state) {
  return static_cast<const PoLabelHintsElement*>(SoElement::getConstElement(state, registeredStackIndex()));
}

// --- 1D-mesh hints ---------------------------------------------------------------------

PO_ELEMENT_SOURCE(PoMesh1DHintsElement)

void PoMesh1DHintsElement::init(SoState* state) {
  SoReplacedElement::init(state);
  interpretation = PoMesh1DHints::ASIS;
}

void PoMesh1DHintsElement::set(SoState* state, SoNode* node, PoMesh1DHints::GeomInterpretation i) {
  CallJournal::record("PoMesh1DHintsElement::set", addr(state), addr(node), static_cast<int>(i));
  setValue(state, node, i);
}

PoMesh1DHints::GeomInterpretation PoMesh1DHintsElement::get(SoState* state) {
  CallJournal::record("PoMesh1DHintsElement::get", addr(state));
  return current(state);
}

void PoMesh1DHintsElement::setValue(SoState* state, SoNode* node, PoMesh1DHints::GeomInterpretation i) {
  auto* e = static_cast<PoMesh1DHintsElement*>(SoReplacedElement::getElement(state, registeredStackIndex(), node));
  if (e != nullptr) e->interpretation = i;
}

PoMesh1DHints::GeomInterpretation PoMesh1DHintsElement::current(SoState* state) {
  auto* e = static_cast<const PoMesh1DHintsElement*>(SoElement::getConstElement(state, registeredStackIndex()));
  return e != nullptr ? e->interpretation : PoMesh1DHints::ASIS;
}

// --- mesh ------------------------------------------------------------------------------

PO_ELEMENT_SOURCE(PoMeshElement)

void PoMeshElement::commonInit() {
  SoReplacedElement::commonInit();
  mesh = nullptr;
  mesh1D = nullptr;
  mesh2D = nullptr;
  mesh3D = nullptr;
}

void PoMeshElement::init(SoState* state) {
  SoReplacedElement::init(state);
  mesh = nullptr;
  mesh1D = nullptr;
  mesh2D = nullptr;
  mesh3D = nullptr;
}

void PoMeshElement::set(SoState* state, SoNode* node, const PbMesh1D* m) {
  CallJournal::record("PoMeshElement::set", addr(state), addr(node), addr(m), 1);
  setValue(state, node, m);
}

void PoMeshElement::set(SoState* state, SoNode* node, const PbMesh2D* m) {
  CallJournal::record("PoMeshElement::set", addr(state), addr(node), addr(m), 2);
  setValue(state, node, m);
}

void PoMeshElement::set(SoState* state, SoNode* node, const PbMesh3D* m) {
  CallJournal::record("PoMeshElement::set", addr(state), addr(node), addr(m), 3);
  setValue(state, node, m);
}

void PoMeshElement::setValue(SoState* state, SoNode* node, const PbMesh* m) {
  auto* e = static_cast<PoMeshElement*>(SoReplacedElement::getElement(state, registeredStackIndex(), node));
  if (e == nullptr) return;
  e->mesh = m;
  e->mesh1D = tk::cachedCast<const PbMesh1D>(m);
  e->mesh2D = tk::cachedCast<const PbMesh2D>(m);
  e->mesh3D = tk::cachedCast<const PbMesh3D>(m);
}

const PbMesh* PoMeshElement::current(SoState* state) {
  auto* e = static_cast<const PoMeshElement*>(SoElement::getConstElement(state, registeredStackIndex()));
  return e != nullptr ? e->mesh : nullptr;
}

#define PO_MESH_GETTER(name, Type, member)                                                          \
  const Type* PoMeshElement::name(SoState* state) {                                                 \
    CallJournal::record("PoMeshElement::" #name, addr(state));                                      \
    auto* e = static_cast<const PoMeshElement*>(SoElement::getConstElement(state, registeredStackIndex())); \
    return e != nullptr ? e->member : nullptr;                                                      \
  }
PO_MESH_GETTER(getMesh, PbMesh, mesh)
PO_MESH_GETTER(getMesh1D, PbMesh1D, mesh1D)
PO_MESH_GETTER(getMesh2D, PbMesh2D, mesh2D)
PO_MESH_GETTER(getMesh3D, PbMesh3D, mesh3D)

// --- profile ---------------------------------------------------------------------------

const SbVec2f* PoProfileElement::getProfile(SoState* state, float v, int& count) {
  CallJournal::record("PoProfileElement::getProfile", addr(state), v, count);
  auto* e = static_cast<const PoProfileElement*>(SoElement::getConstElement(state, registeredStackIndex()));
  if (e == nullptr || e->value == nullptr) {
    count = 0;
    return nullptr;
  }
  const float h = std::fabs(v);
  e->points = {SbVec2f(-h, -h), SbVec2f(h, -h), SbVec2f(h, h), SbVec2f(-h, h)};
  count = static_cast<int>(e->points.size());
  return e->points.data();
}

SbBox2f PoProfileElement::getBBox(SoState* state) {
  CallJournal::record("PoProfileElement::getBBox", addr(state));
  auto* e = static_cast<const PoProfileElement*>(SoElement::getConstElement(state, registeredStackIndex()));
  if (e == nullptr || e->value == nullptr) return SbBox2f();
  return SbBox2f(-1, -1, 1, 1);
}
