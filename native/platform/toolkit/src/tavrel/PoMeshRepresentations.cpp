// The mesh representation node kits: types, catalogs and the objects they keep.

#include <Tavrel/PoCellFilterElement.h>
#include <Tavrel/PoDataMappingElement.h>
#include <Tavrel/PoDomainElement.h>
#include <Tavrel/PoIsovaluesListElement.h>
#include <Tavrel/PoMeshElement.h>
#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbMesh2D.h>
#include <Tavrel/PbMesh3D.h>
#include <Tavrel/PoCellFilter.h>
#include <Tavrel/PoBaseStreamLine.h>
#include <Tavrel/PoCellEdges.h>
#include <Tavrel/PoCellFacets.h>
#include <Tavrel/PoCellIndices.h>
#include <Tavrel/PoCellShape.h>
#include <Tavrel/PoDessvane.h>
#include <Tavrel/PoMesh.h>
#include <Tavrel/PoMesh2D.h>
#include <Tavrel/PoMesh2DVec.h>
#include <Tavrel/PoMesh3D.h>
#include <Tavrel/PoMesh3DVec.h>
#include <Tavrel/PoMesh3DVecCrossSection.h>
#include <Tavrel/PoMesh3DVecGridCrossSection.h>
#include <Tavrel/PoMeshContouring.h>
#include <Tavrel/PoMeshCrossContour.h>
#include <Tavrel/PoMeshCrossSection.h>
#include <Tavrel/PoMeshFilled.h>
#include <Tavrel/PoMeshLevelSurf.h>
#include <Tavrel/PoMeshLimit.h>
#include <Tavrel/PoMeshLines.h>
#include <Tavrel/PoMeshSides.h>
#include <Tavrel/PoMeshSkeleton.h>
#include <Tavrel/PoMeshSkin.h>
#include <Tavrel/PoStreamLine.h>
#include <Tavrel/PoStreamLineMotion.h>
#include <Tavrel/PoStreamParticleMotion.h>
#include <Tavrel/PoStreamPointMotion.h>
#include <Tavrel/PoStreamSphereMotion.h>
#include <Tavrel/PoStreamSurface.h>
#include <Tavrel/PoStreamTadpoleMotion.h>

#include <charconv>
#include <string>
#include <type_traits>
#include <utility>

// Constructors of the classes made by the binding are journaled; those of the
// abstract bases are not (they only run as part of a derived object).
#define PO_ABSTRACT_LIFECYCLE(className) \
  className::className() = default;      \
  className::~className() = default;

#define PO_CONCRETE_LIFECYCLE(className)                                 \
  className::className() { CallJournal::record(#className "::" #className); } \
  className::~className() = default;

// --- abstract bases ----------------------------------------------------------

SO_KIT_ABSTRACT_SOURCE(PoDessvane, SoBaseKit, "PoDessvane", {"topSeparator", "appearance", "transform"})
PO_ABSTRACT_LIFECYCLE(PoDessvane)

SO_KIT_ABSTRACT_SOURCE(PoMesh, PoDessvane, "PoMesh", {"meshGroup"})

namespace {
SoField* reportField(SoFieldContainer* kit, const char* name) {
  CallJournal::Quiet quiet;
  return kit->addOwnField(name);
}

// Numbers of the report fields, separated by spaces: floats as "%.9g" writes
// them, integers as they are (a render reports up to millions of cells).
template <class Number>
void appendNumber(std::string& text, Number v) {
  char buf[32];
  char* end = buf;
  if (!text.empty()) *end++ = ' ';
  if constexpr (std::is_integral_v<Number>)
    end = std::to_chars(end, buf + sizeof buf, v).ptr;
  else
    end = std::to_chars(end, buf + sizeof buf, static_cast<double>(v), std::chars_format::general, 9).ptr;
  text.append(buf, end);
}
}  // namespace

PoMesh::PoMesh()
    : drawnCellsField(reportField(this, "drawnCells")),
      cellColorsField(reportField(this, "cellColors")),
      isovaluesField(reportField(this, "isovalues")),
      domainField(reportField(this, "domain")) {}

PoMesh::~PoMesh() = default;

SO_KIT_ABSTRACT_SOURCE(PoMesh2D, PoMesh, "PoMesh2D", {})
PO_ABSTRACT_LIFECYCLE(PoMesh2D)

SO_KIT_ABSTRACT_SOURCE(PoMesh3D, PoMesh, "PoMesh3D", {})
PO_ABSTRACT_LIFECYCLE(PoMesh3D)

// --- objects kept by the representations --------------------------------------

namespace {
// A setter's body: journals the call and keeps the address.
template <class T>
void keep(const char* function, T*& member, T* value) {
  CallJournal::record(function, static_cast<const void*>(value));
  member = value;
}

// A getter's body: journals the call and gives the address back.
template <class T>
T* given(const char* function, T* member) {
  CallJournal::record(function);
  return member;
}
}  // namespace

void PoMesh::setMesh(PbMesh* m) { keep("PoMesh::setMesh", mesh, m); }

PbMesh* PoMesh::getMesh() const { return given("PoMesh::getMesh", mesh); }

void PoMesh::setDataMapping(PbDataMapping* mapping) { keep("PoMesh::setDataMapping", dataMapping, mapping); }

PbDataMapping* PoMesh::getDataMapping() const { return given("PoMesh::getDataMapping", dataMapping); }

void PoMesh::setModuleDataMapping(PbDataMapping* mapping) {
  keep("PoMesh::setModuleDataMapping", moduleDataMapping, mapping);
}

PbDataMapping* PoMesh::getModuleDataMapping() const {
  return given("PoMesh::getModuleDataMapping", moduleDataMapping);
}

void PoMesh::setIsovaluesList(PbIsovaluesList* isovalues) {
  keep("PoMesh::setIsovaluesList", isovaluesList, isovalues);
}

PbIsovaluesList* PoMesh::getIsovaluesList() const { return given("PoMesh::getIsovaluesList", isovaluesList); }

void PoMesh2D::setMesh(PbMesh2D* m) { keep("PoMesh2D::setMesh", mesh2D, m); }

PbMesh2D* PoMesh2D::getMesh() const { return given("PoMesh2D::getMesh", mesh2D); }

void PoMesh3D::setMesh(PbMesh3D* m) { keep("PoMesh3D::setMesh", mesh3D, m); }

PbMesh3D* PoMesh3D::getMesh() const { return given("PoMesh3D::getMesh", mesh3D); }

// --- cells drawn -----------------------------------------------------------------

const PbMesh* PoMesh::drawnMesh() const { return mesh; }

const PbMesh* PoMesh2D::drawnMesh() const { return mesh2D ? mesh2D : PoMesh::drawnMesh(); }

const PbMesh* PoMesh3D::drawnMesh() const { return mesh3D ? mesh3D : PoMesh::drawnMesh(); }

void PoMesh::selectCells(SoAction* action) {
  SoState* state = action->getState();
  const PbMesh* drawn = drawnMesh();
  if (drawn == nullptr && state != nullptr) drawn = PoMeshElement::current(state);
  if (drawn == nullptr) {
    report(state, {}, {});
    return;
  }
  const PoCellFilter* filter = state != nullptr ? PoCellFilterElement::current(state) : nullptr;
  const std::vector<float> values = drawn->cellValues(0);
  const int numCells = static_cast<int>(values.size());
  std::vector<int> chosen = PoCellFilter::selectCells(filter, numCells, values.data());
  CallJournal::record("PoMesh::selectCells", static_cast<const void*>(filter), numCells,
                      journalArray(chosen.data(), static_cast<long>(chosen.size())));
  report(state, std::move(chosen), values);
}

void PoMesh::report(SoState* state, std::vector<int> chosen, const std::vector<float>& cellValues) {
  CallJournal::Quiet quiet;
  const PbDataMapping* mapping = dataMapping;
  if (mapping == nullptr && state != nullptr) mapping = PoDataMappingElement::current(state);
  const PbIsovaluesList* isovalues = isovaluesList;
  if (isovalues == nullptr && state != nullptr) isovalues = PoIsovaluesListElement::current(state);
  const PbDomain* domain = state != nullptr ? PoDomainElement::current(state) : nullptr;

  std::string cells, colours, list, box;
  for (int c : chosen) {
    appendNumber(cells, c);
    if (mapping != nullptr) {
      const SbColor colour = mapping->colorOf(cellValues[static_cast<std::size_t>(c)]);
      for (int k = 0; k < 3; ++k) appendNumber(colours, colour[k]);
    }
  }
  if (isovalues != nullptr) {
    int num = 0;
    float lo = 0, hi = 0, step = 0;
    SbBool regular = 0;
    const float* values = isovalues->getIsoList(num, lo, hi, step, regular);
    for (int i = 0; values != nullptr && i < num; ++i) appendNumber(list, values[i]);
  }
  if (domain != nullptr) {
    const float* corners = reinterpret_cast<const float*>(&domain->box());
    for (int k = 0; k < 6; ++k) appendNumber(box, corners[k]);
  }
  std::lock_guard<std::mutex> lock(reportLock);
  selected = std::move(chosen);
  drawnCellsField->setValueString(cells);
  cellColorsField->setValueString(colours);
  isovaluesField->setValueString(list);
  domainField->setValueString(box);
}

void PoMesh::GLRender(SoGLRenderAction* action) { selectCells(action); }

void PoMesh::callback(SoCallbackAction* action) { selectCells(action); }

void PoMeshContouring::setFormat(PbNumericDisplayFormat* f) { keep("PoMeshContouring::setFormat", format, f); }

PbNumericDisplayFormat* PoMeshContouring::getFormat() const { return given("PoMeshContouring::getFormat", format); }

void PoMeshContouring::setMiscTextAttr(PbMiscTextAttr* textAttr) {
  keep("PoMeshContouring::setMiscTextAttr", miscTextAttr, textAttr);
}

PbMiscTextAttr* PoMeshContouring::getMiscTextAttr() const {
  return given("PoMeshContouring::getMiscTextAttr", miscTextAttr);
}

// --- representations of 2D meshes -------------------------------------------------

SO_KIT_SOURCE(PoMeshContouring, PoMesh2D, "PoMeshContouring", {"contourLines", "contourAnnotations"})
PO_CONCRETE_LIFECYCLE(PoMeshContouring)

SO_KIT_SOURCE(PoMeshFilled, PoMesh2D, "PoMeshFilled", {"filledCells"})
PO_CONCRETE_LIFECYCLE(PoMeshFilled)

SO_KIT_SOURCE(PoMeshLimit, PoMesh2D, "PoMeshLimit", {"limitLines"})
PO_CONCRETE_LIFECYCLE(PoMeshLimit)

SO_KIT_SOURCE(PoMeshLines, PoMesh2D, "PoMeshLines", {"cellLines"})
PO_CONCRETE_LIFECYCLE(PoMeshLines)

SO_KIT_SOURCE(PoMeshSides, PoMesh2D, "PoMeshSides", {"sideFaces", "thresholdOutline"})
PO_CONCRETE_LIFECYCLE(PoMeshSides)

SO_KIT_SOURCE(PoMesh2DVec, PoMesh2D, "PoMesh2DVec", {"vectorBodies", "vectorArrows"})
PO_CONCRETE_LIFECYCLE(PoMesh2DVec)

// --- representations of 3D meshes -------------------------------------------------

SO_KIT_SOURCE(PoMeshCrossContour, PoMesh3D, "PoMeshCrossContour", {"crossContourLines"})
PO_CONCRETE_LIFECYCLE(PoMeshCrossContour)

SO_KIT_SOURCE(PoMeshCrossSection, PoMesh3D, "PoMeshCrossSection", {"sectionFaces", "sectionOutline"})
PO_CONCRETE_LIFECYCLE(PoMeshCrossSection)

SO_KIT_SOURCE(PoMeshLevelSurf, PoMesh3D, "PoMeshLevelSurf", {"levelSurface"})
PO_CONCRETE_LIFECYCLE(PoMeshLevelSurf)

SO_KIT_SOURCE(PoMeshSkeleton, PoMesh3D, "PoMeshSkeleton", {"skeletonX", "skeletonY", "skeletonZ"})
PO_CONCRETE_LIFECYCLE(PoMeshSkeleton)

SO_KIT_SOURCE(PoMeshSkin, PoMesh3D, "PoMeshSkin", {"skinFaces"})
PO_CONCRETE_LIFECYCLE(PoMeshSkin)

SO_KIT_SOURCE(PoMesh3DVec, PoMesh3D, "PoMesh3DVec", {"vectorBodies", "vectorArrows"})
PO_CONCRETE_LIFECYCLE(PoMesh3DVec)

SO_KIT_SOURCE(PoMesh3DVecCrossSection, PoMesh3D, "PoMesh3DVecCrossSection", {"sectionVectors"})
PO_CONCRETE_LIFECYCLE(PoMesh3DVecCrossSection)

SO_KIT_SOURCE(PoMesh3DVecGridCrossSection, PoMesh3D, "PoMesh3DVecGridCrossSection", {"gridVectors"})
PO_CONCRETE_LIFECYCLE(PoMesh3DVecGridCrossSection)

// --- stream lines and particles -----------------------------------------------------

SO_KIT_SOURCE(PoBaseStreamLine, PoMesh3D, "PoBaseStreamLine", {"startPoints"})
PO_CONCRETE_LIFECYCLE(PoBaseStreamLine)

SO_KIT_SOURCE(PoStreamLine, PoBaseStreamLine, "PoStreamLine", {"streamLines"})
PO_CONCRETE_LIFECYCLE(PoStreamLine)

SO_KIT_SOURCE(PoStreamSurface, PoBaseStreamLine, "PoStreamSurface", {"streamSurfaces"})
PO_CONCRETE_LIFECYCLE(PoStreamSurface)

SO_KIT_ABSTRACT_SOURCE(PoStreamParticleMotion, PoBaseStreamLine, "PoStreamParticleMotion", {"particles"})
PO_ABSTRACT_LIFECYCLE(PoStreamParticleMotion)

SO_KIT_SOURCE(PoStreamLineMotion, PoStreamParticleMotion, "PoStreamLineMotion", {"pulseLines"})
PO_CONCRETE_LIFECYCLE(PoStreamLineMotion)

SO_KIT_SOURCE(PoStreamPointMotion, PoStreamParticleMotion, "PoStreamPointMotion", {"particlePoints"})
PO_CONCRETE_LIFECYCLE(PoStreamPointMotion)

SO_KIT_SOURCE(PoStreamSphereMotion, PoStreamParticleMotion, "PoStreamSphereMotion", {"particleSpheres"})
PO_CONCRETE_LIFECYCLE(PoStreamSphereMotion)

SO_KIT_SOURCE(PoStreamTadpoleMotion, PoStreamParticleMotion, "PoStreamTadpoleMotion", {"tadpoles"})
PO_CONCRETE_LIFECYCLE(PoStreamTadpoleMotion)

// --- single cells ---------------------------------------------------------------------

SO_KIT_SOURCE(PoCellEdges, PoMesh, "PoCellEdges", {"cellEdges"})
PO_CONCRETE_LIFECYCLE(PoCellEdges)

SO_KIT_SOURCE(PoCellFacets, PoMesh, "PoCellFacets", {"cellFacets"})
PO_CONCRETE_LIFECYCLE(PoCellFacets)

SO_KIT_SOURCE(PoCellIndices, PoMesh, "PoCellIndices", {"nodeIndices"})
PO_CONCRETE_LIFECYCLE(PoCellIndices)

SO_KIT_SOURCE(PoCellShape, PoMesh, "PoCellShape", {"cellShape", "nodeNames"})
PO_CONCRETE_LIFECYCLE(PoCellShape)
