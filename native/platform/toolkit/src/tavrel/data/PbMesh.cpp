#include <Corvel/CallJournal.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PbMesh1D.h>

#include <algorithm>
#include <typeinfo>
#include <cmath>

PbMesh::PbMesh(int isDataDuplicated) : dataDuplicated(isDataDuplicated) {}

PbMesh::PbMesh(const PbMesh& other)
    : numNodes(other.numNodes),
      numCells(other.numCells),
      dataDuplicated(other.dataDuplicated),
      boundingBox(other.boundingBox),
      values(other.values),
      vecs(other.vecs),
      strings(other.strings) {}

PbMesh::~PbMesh() = default;

PbMesh& PbMesh::operator=(const PbMesh& other) {
  if (this == &other) return *this;
  numNodes = other.numNodes;
  numCells = other.numCells;
  dataDuplicated = other.dataDuplicated;
  boundingBox = other.boundingBox;
  values = other.values;
  vecs = other.vecs;
  strings = other.strings;
  cells.clear();
  return *this;
}

bool PbMesh::sameMeshAs(const PbMesh& other) const {
  if (this == &other) return true;
  if (typeid(*this) != typeid(other) || numNodes != other.numNodes || numCells != other.numCells) return false;
  for (int n = 0; n < numNodes; ++n)
    if (!(nodeCoord(n) == other.nodeCoord(n))) return false;
  std::vector<int> mine, theirs;
  for (int c = 0; c < numCells; ++c) {
    cellNodes(c, mine);
    other.cellNodes(c, theirs);
    if (mine != theirs) return false;
  }
  auto sameValues = [](const ValuesSet& a, const ValuesSet& b) {
    return a.hasData == b.hasData && a.binding == b.binding && a.name == b.name && a.data == b.data;
  };
  auto sameSet = [](const auto& a, const auto& b) {
    return a.hasData == b.hasData && a.name == b.name && a.data == b.data;
  };
  auto sameMaps = [](const auto& a, const auto& b, auto same) {
    if (a.size() != b.size()) return false;
    for (auto i = a.begin(), j = b.begin(); i != a.end(); ++i, ++j)
      if (i->first != j->first || !same(i->second, j->second)) return false;
    return true;
  };
  return sameMaps(values, other.values, sameValues) && sameMaps(vecs, other.vecs, sameSet) &&
         sameMaps(strings, other.strings, sameSet);
}

void PbMesh::geometryChanged(int nodes, int cellCount) {
  const bool nodesChanged = nodes != numNodes, cellsChanged = cellCount != numCells;
  numNodes = std::max(nodes, 0);
  numCells = std::max(cellCount, 0);
  cells.clear();
  ++geometryVersion;
  for (auto& entry : values)
    if (entry.second.hasData && (entry.second.binding == PER_CELL ? cellsChanged : nodesChanged))
      entry.second.data.resize(length(entry.second.binding), 0.0f);
  if (nodesChanged) {
    for (auto& entry : vecs)
      if (entry.second.hasData) entry.second.data.resize(numNodes);
    for (auto& entry : strings)
      if (entry.second.hasData) entry.second.data.resize(numNodes);
  }
  boundingBox.makeEmpty();
  for (int i = 0; i < numNodes; ++i) boundingBox.extendBy(nodeCoord(i));
}

// --- counts -----------------------------------------------------------------

int PbMesh::getNumNodes() const {
  CallJournal::record("PbMesh::getNumNodes");
  return numNodes;
}

int PbMesh::getNumCells() const {
  CallJournal::record("PbMesh::getNumCells");
  return numCells;
}

SbBool PbMesh::isDataDuplicated() const {
  CallJournal::record("PbMesh::isDataDuplicated");
  return dataDuplicated;
}

// --- cells --------------------------------------------------------------------

void PbMesh::cellNodes(int, std::vector<int>& nodes) const { nodes.clear(); }

PbCell* PbMesh::newCell(int) const { return nullptr; }

const PbCell* PbMesh::cellAt(int cellIndex) const {
  if (cellIndex < 0 || cellIndex >= numCells) return nullptr;
  if (cells.empty()) cells.resize(numCells);
  auto& cell = cells[cellIndex];
  if (!cell) cell.reset(newCell(cellIndex));
  return cell.get();
}

const PbCell* PbMesh::getCell(int cellIndex) const {
  CallJournal::record("PbMesh::getCell", cellIndex);
  return cellAt(cellIndex);
}

const PbCell* PbMesh::getTopoCell(int cellIndex) const {
  CallJournal::record("PbMesh::getTopoCell", cellIndex);
  return nullptr;
}

const PbCell* PbMesh::findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                         const PbCell* adjacentCell) const {
  CallJournal::record("PbMesh::findContainingCell", point, tolerance, static_cast<const void*>(adjacentCell));
  return findContainingCellProtected(point, tolerance, pcoord, adjacentCell);
}

const PbCell* PbMesh::findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const {
  CallJournal::record("PbMesh::findContainingCell", point, tolerance);
  return findContainingCellProtected(point, tolerance, pcoord, nullptr);
}

const PbCell* PbMesh::findContainingCellProtected(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                                  const PbCell* adjacentCell) const {
  SbVec3f p;
  if (adjacentCell != nullptr && adjacentCell->getMesh() == this && adjacentCell->locate(point, tolerance, p)) {
    pcoord = p;
    return adjacentCell;
  }
  std::vector<int> nodes;
  for (int c = 0; c < numCells; ++c) {
    // Cheap test on the nodes' box (widened by the tolerance) before the cell is made.
    cellNodes(c, nodes);
    if (nodes.empty()) continue;
    SbBox3f box;
    for (int n : nodes) box.extendBy(nodeCoord(n));
    SbVec3f margin = (box.getMax() - box.getMin()) * tolerance;
    const float slack = 1e-5f * (1.0f + box.getMax().length());
    bool near = true;
    for (int a = 0; a < searchDimensions(); ++a)
      near = near && point[a] >= box.getMin()[a] - margin[a] - slack && point[a] <= box.getMax()[a] + margin[a] + slack;
    if (!near) continue;
    const PbCell* cell = cellAt(c);
    if (cell != nullptr && cell->locate(point, tolerance, p)) {
      pcoord = p;
      return cell;
    }
  }
  return nullptr;
}

float PbMesh::getVolume() const {
  CallJournal::record("PbMesh::getVolume");
  float sum = 0.0f;
  for (int c = 0; c < numCells; ++c)
    if (const PbCell* cell = cellAt(c)) sum += cell->volume();
  return sum;
}

float PbMesh::getArea() const {
  CallJournal::record("PbMesh::getArea");
  float sum = 0.0f;
  for (int c = 0; c < numCells; ++c)
    if (const PbCell* cell = cellAt(c)) sum += cell->area();
  return sum;
}

SbBox3f PbMesh::cellBox(int& cellIndex, bool biggest) const {
  SbBox3f best;
  float bestSize = 0.0f;
  bool found = false;
  for (int c = 0; c < numCells; ++c) {
    const PbCell* cell = cellAt(c);
    if (cell == nullptr) continue;
    SbBox3f b = cell->box();
    float size = (b.getMax() - b.getMin()).length();
    if (!found || (biggest ? size > bestSize : size < bestSize)) {
      found = true;
      best = b;
      bestSize = size;
      cellIndex = c;
    }
  }
  return best;
}

SbBox3f PbMesh::getSmallestCellBox(int& cellIndex) const {
  CallJournal::record("PbMesh::getSmallestCellBox");
  return cellBox(cellIndex, false);
}

SbBox3f PbMesh::getBiggestCellBox(int& cellIndex) const {
  CallJournal::record("PbMesh::getBiggestCellBox");
  return cellBox(cellIndex, true);
}

// --- geometry -----------------------------------------------------------------

void PbMesh::setCoordinates(const float* x, const float* y, const float* z) {
  CallJournal::record("PbMesh::setCoordinates", journalArray(x, numNodes), journalArray(y, numNodes),
                      journalArray(z, numNodes));
}

void PbMesh::getCoordinates(const float*&, const float*&, const float*&, int&, int&, int&) const {
  CallJournal::record("PbMesh::getCoordinates");
}

SbVec3f PbMesh::getNodeCoord(int nodeIndex) const {
  CallJournal::record("PbMesh::getNodeCoord", nodeIndex);
  return nodeCoord(nodeIndex);
}

SbBox3f PbMesh::getBoundingBox() const {
  CallJournal::record("PbMesh::getBoundingBox");
  return boundingBox;
}

// --- data sets ------------------------------------------------------------------

void PbMesh::putValues(int set, const float* data, DataBinding binding, const SbString& name) {
  ValuesSet& s = values[set] = ValuesSet();
  s.name = name;
  s.binding = binding;
  s.hasData = data != nullptr;
  if (data != nullptr) s.data.assign(data, data + length(binding));
}

void PbMesh::putVecs(int set, const SbVec3f* data, const SbString& name) {
  auto& s = vecs[set] = Set<SbVec3f>();
  s.name = name;
  s.hasData = data != nullptr;
  if (data != nullptr) s.data.assign(data, data + numNodes);
}

void PbMesh::addValuesSet(int set, const float* data, const SbString& name) {
  CallJournal::record("PbMesh::addValuesSet", set, journalArray(data, numNodes), name);
  putValues(set, data, PER_NODE, name);
}

void PbMesh::addValuesSet(int set, const float* data, DataBinding binding, const SbString& name) {
  CallJournal::record("PbMesh::addValuesSet", set, journalArray(data, length(binding)),
                      JournalName{binding == PER_CELL ? "PER_CELL" : "PER_NODE"}, name);
  putValues(set, data, binding, name);
}

void PbMesh::addVecsSet(int set, const SbVec3f* data, const SbString& name) {
  CallJournal::record("PbMesh::addVecsSet", set, journalArray(data, numNodes), name);
  putVecs(set, data, name);
}

void PbMesh::addStringsSet(int set, const SbString* data, const SbString& name) {
  CallJournal::record("PbMesh::addStringsSet", set, journalArray(data, numNodes), name);
  auto& s = strings[set] = Set<SbString>();
  s.name = name;
  s.hasData = data != nullptr;
  if (data != nullptr) s.data.assign(data, data + numNodes);
}

const PbMesh::ValuesSet* PbMesh::valuesSet(int set) const {
  auto it = values.find(set);
  return it == values.end() ? nullptr : &it->second;
}

std::vector<float> PbMesh::cellValues(int set) const {
  std::vector<float> result(static_cast<std::size_t>(numCells), 0.0f);
  const ValuesSet* s = valuesSet(set);
  if (s == nullptr || !s->hasData) return result;
  if (s->binding == PER_CELL) {
    std::copy(s->data.begin(), s->data.begin() + numCells, result.begin());
    return result;
  }
  std::vector<int> nodes;
  for (int c = 0; c < numCells; ++c) {
    cellNodes(c, nodes);
    double sum = 0;
    int counted = 0;
    for (int n : nodes)
      if (n >= 0 && n < numNodes) {
        sum += s->data[n];
        ++counted;
      }
    if (counted > 0) result[c] = static_cast<float>(sum / counted);
  }
  return result;
}

PbMesh::DataBinding PbMesh::getValuesBinding(int set) const {
  CallJournal::record("PbMesh::getValuesBinding", set);
  const ValuesSet* s = valuesSet(set);
  return s == nullptr ? PER_NODE : s->binding;
}

int PbMesh::getNumValuesSet() const {
  CallJournal::record("PbMesh::getNumValuesSet");
  return static_cast<int>(values.size());
}

int PbMesh::getNumStringsSet() const {
  CallJournal::record("PbMesh::getNumStringsSet");
  return static_cast<int>(strings.size());
}

int PbMesh::getNumVecsSet() const {
  CallJournal::record("PbMesh::getNumVecsSet");
  return static_cast<int>(vecs.size());
}

namespace {
template <class Map>
auto findSet(const Map& map, int set) -> decltype(&map.begin()->second) {
  auto it = map.find(set);
  return it == map.end() ? nullptr : &it->second;
}

template <class Map>
SbBool eraseSet(Map& map, int set) {
  return map.erase(set) != 0 ? 1 : 0;
}

template <class S, class Measure, class Better>
SbBool extreme(const S* s, float& result, Measure measure, Better better) {
  if (s == nullptr || !s->hasData || s->data.empty()) return 0;
  float best = measure(s->data[0]);
  for (const auto& v : s->data)
    if (better(measure(v), best)) best = measure(v);
  result = best;
  return 1;
}

float valueOf(float v) { return v; }
float lengthOf(const SbVec3f& v) { return v.length(); }
bool less(float a, float b) { return a < b; }
bool more(float a, float b) { return a > b; }
}  // namespace

const SbString* PbMesh::getValuesSetName(int set) const {
  CallJournal::record("PbMesh::getValuesSetName", set);
  auto s = findSet(values, set);
  return s == nullptr ? nullptr : &s->name;
}

const SbString* PbMesh::getStringsSetName(int set) const {
  CallJournal::record("PbMesh::getStringsSetName", set);
  auto s = findSet(strings, set);
  return s == nullptr ? nullptr : &s->name;
}

const SbString* PbMesh::getVecsSetName(int set) const {
  CallJournal::record("PbMesh::getVecsSetName", set);
  auto s = findSet(vecs, set);
  return s == nullptr ? nullptr : &s->name;
}

const float* PbMesh::getValuesSet(int set) const {
  CallJournal::record("PbMesh::getValuesSet", set);
  auto s = findSet(values, set);
  return s == nullptr || !s->hasData ? nullptr : s->data.data();
}

const SbVec3f* PbMesh::getVecsSet(int set) const {
  CallJournal::record("PbMesh::getVecsSet", set);
  auto s = findSet(vecs, set);
  return s == nullptr || !s->hasData ? nullptr : s->data.data();
}

const SbString* PbMesh::getStringsSet(int set) const {
  CallJournal::record("PbMesh::getStringsSet", set);
  auto s = findSet(strings, set);
  return s == nullptr || !s->hasData ? nullptr : s->data.data();
}

SbBool PbMesh::removeValuesSet(int set) {
  CallJournal::record("PbMesh::removeValuesSet", set);
  return eraseSet(values, set);
}

SbBool PbMesh::removeStringsSet(int set) {
  CallJournal::record("PbMesh::removeStringsSet", set);
  return eraseSet(strings, set);
}

SbBool PbMesh::removeVecsSet(int set) {
  CallJournal::record("PbMesh::removeVecsSet", set);
  return eraseSet(vecs, set);
}

void PbMesh::removeAllValuesSet() {
  CallJournal::record("PbMesh::removeAllValuesSet");
  values.clear();
}

void PbMesh::removeAllStringsSet() {
  CallJournal::record("PbMesh::removeAllStringsSet");
  strings.clear();
}

void PbMesh::removeAllVecsSet() {
  CallJournal::record("PbMesh::removeAllVecsSet");
  vecs.clear();
}

SbBool PbMesh::getMinValuesSet(int set, float& min) const {
  CallJournal::record("PbMesh::getMinValuesSet", set);
  return extreme(findSet(values, set), min, valueOf, less);
}

SbBool PbMesh::getMaxValuesSet(int set, float& max) const {
  CallJournal::record("PbMesh::getMaxValuesSet", set);
  return extreme(findSet(values, set), max, valueOf, more);
}

SbBool PbMesh::getMinVecsSet(int set, float& min) const {
  CallJournal::record("PbMesh::getMinVecsSet", set);
  return extreme(findSet(vecs, set), min, lengthOf, less);
}

SbBool PbMesh::getMaxVecsSet(int set, float& max) const {
  CallJournal::record("PbMesh::getMaxVecsSet", set);
  return extreme(findSet(vecs, set), max, lengthOf, more);
}

// --- one-dimensional meshes -----------------------------------------------------------

const PbCell* PbMesh1D::getCell(int cellIndex) const {
  CallJournal::record("PbMesh1D::getCell", cellIndex);
  return nullptr;
}

const PbCell* PbMesh1D::findContainingCell(const SbVec3f& point, float tolerance, SbVec3f&, const PbCell* adjacent) const {
  CallJournal::record("PbMesh1D::findContainingCell", point, tolerance, static_cast<const void*>(adjacent));
  return nullptr;
}

const PbCell* PbMesh1D::findContainingCell(const SbVec3f& point, float tolerance, SbVec3f&) const {
  CallJournal::record("PbMesh1D::findContainingCell", point, tolerance);
  return nullptr;
}

const PbCell* PbMesh1D::findContainingCellProtected(const SbVec3f&, float, SbVec3f&, const PbCell*) const {
  return nullptr;
}

float PbMesh1D::getVolume() const {
  CallJournal::record("PbMesh1D::getVolume");
  return 0.0f;
}

float PbMesh1D::getArea() const {
  CallJournal::record("PbMesh1D::getArea");
  return 0.0f;
}
