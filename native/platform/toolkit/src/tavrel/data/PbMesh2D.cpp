#include <Corvel/CallJournal.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbDefinedValue.h>
#include <Tavrel/PbIndexedMesh2D.h>
#include <Tavrel/PbMesh2D.h>
#include <Tavrel/PbMesh3D.h>

#include <memory>

namespace {
PbCell* cellByNodeCount(const PbMesh* mesh, int dimension, int cellIndex) {
  std::vector<int> nodes;
  mesh->cellNodes(cellIndex, nodes);
  PbCell::Kind kind;
  if (!PbCell::kindOf(dimension, static_cast<int>(nodes.size()), kind)) return nullptr;
  return PbCell::make(kind, mesh, cellIndex, nodes);
}
}  // namespace

PbCell* PbMesh2D::newCell(int cellIndex) const { return cellByNodeCount(this, 2, cellIndex); }

PbCell* PbMesh3D::newCell(int cellIndex) const { return cellByNodeCount(this, 3, cellIndex); }

void PbMesh2D::addVecsSet(int set, const SbVec2f* vectors, const SbString& name) {
  const int n = countNodes();
  CallJournal::record("PbMesh2D::addVecsSet", set, journalArray(vectors, n), name);
  std::vector<SbVec3f> wide;
  if (vectors != nullptr)
    for (int i = 0; i < n; ++i) wide.emplace_back(vectors[i][0], vectors[i][1], 0.0f);
  putVecs(set, vectors != nullptr ? wide.data() : nullptr, name);
}

SbBox2f PbMesh2D::get2DBoundingBox() const {
  CallJournal::record("PbMesh2D::get2DBoundingBox");
  SbBox2f box;
  for (int i = 0; i < countNodes(); ++i) {
    SbVec3f p = nodeAt(i);
    box.extendBy(SbVec2f(p[0], p[1]));
  }
  return box;
}

PbMesh2D* PbMesh2D::getFaultMesh(int numFaultNodes, const int* faultNodes, const SbVec3f* faultVectors,
                                 ExtrapolationMethod method, PbDefinedValue& definedValue) const {
  CallJournal::record("PbMesh2D::getFaultMesh", numFaultNodes, journalArray(faultNodes, numFaultNodes),
                      journalArray(faultVectors, numFaultNodes), static_cast<int>(method),
                      static_cast<const void*>(&definedValue));
  const int n = countNodes();
  std::vector<float> x(n), y(n), z(n);
  for (int i = 0; i < n; ++i) {
    SbVec3f p = nodeAt(i);
    x[i] = p[0], y[i] = p[1], z[i] = p[2];
  }
  std::vector<int> types, list, nodes;
  for (int c = 0; c < countCells(); ++c) {
    cellNodes(c, nodes);
    types.push_back(static_cast<int>(nodes.size()));
    list.insert(list.end(), nodes.begin(), nodes.end());
  }
  std::unique_ptr<PbIndexedMesh2D> fault(new PbIndexedMesh2D(PbIndexedMesh2D::Quiet(), duplicationFlag()));
  fault->assign(n, x.data(), y.data(), z.data(), static_cast<int>(types.size()), types.data(), 0, list.data());
  for (const auto& entry : valuesSets()) {
    const ValuesSet& set = entry.second;
    if (!set.hasData || set.binding != PER_NODE) continue;
    std::vector<float> copy(set.data);
    for (int j = 0; j < n; ++j)
      if (!definedValue(copy[j], entry.first, j)) copy[j] = definedValue.getUndef(entry.first);
    fault->putValues(entry.first, copy.data(), PER_NODE, set.name);
  }
  return fault.release();
}
