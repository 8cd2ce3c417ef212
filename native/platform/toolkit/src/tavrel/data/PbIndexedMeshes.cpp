#include <Corvel/CallJournal.h>
#include <Tavrel/PbHexahedronMesh3D.h>
#include <Tavrel/PbIndexedMesh2D.h>
#include <Tavrel/PbIndexedMesh3D.h>
#include <Tavrel/PbQuadrangleMesh2D.h>
#include <Tavrel/PbTetrahedronMesh3D.h>
#include <Tavrel/PbTriangleMesh2D.h>

#include <algorithm>

#include "MeshSupport.h"

namespace {
long listLength(int numCells, const int* cellTypes, int fixed) {
  return PbIndexedNodes::listLength(numCells, cellTypes, fixed);
}

// The triangles of a fan around node 0.
std::vector<int> fan(int numNodes) {
  std::vector<int> triangles;
  for (int i = 1; i + 1 < numNodes; ++i) triangles.insert(triangles.end(), {0, i, i + 1});
  return triangles;
}
}  // namespace

// --- PbIndexedNodes -----------------------------------------------------------------

long PbIndexedNodes::listLength(int numCells, const int* cellTypes, int fixed) {
  if (numCells <= 0) return 0;
  if (cellTypes == nullptr) return static_cast<long>(numCells) * fixed;
  long sum = 0;
  for (int c = 0; c < numCells; ++c) sum += cellTypes[c];
  return sum;
}

void PbIndexedNodes::assign(int numNodes, const float* x, const float* y, const float* z, int numCells,
                            const int* cellTypes, int fixed, const int* cellIndex) {
  numNodes = std::max(numNodes, 0);
  tk::copyInto(xs, x, numNodes);
  tk::copyInto(ys, y, numNodes);
  if (z == nullptr)
    zs.clear();
  else
    tk::copyInto(zs, z, numNodes);
  numCells = std::max(numCells, 0);
  starts.assign(1, 0);
  for (int c = 0; c < numCells; ++c) starts.push_back(starts.back() + (cellTypes ? cellTypes[c] : fixed));
  if (cellIndex == nullptr)
    nodeList.assign(starts.back(), 0);
  else
    nodeList.assign(cellIndex, cellIndex + starts.back());
}

void PbIndexedNodes::replace(const float* x, const float* y, const float* z) {
  const long n = numNodes();
  if (x != nullptr) tk::copyInto(xs, x, n);
  if (y != nullptr) tk::copyInto(ys, y, n);
  if (z != nullptr) tk::copyInto(zs, z, n);
}

void PbIndexedNodes::cellNodes(int cellIndex, std::vector<int>& nodes) const {
  nodes.clear();
  if (cellIndex < 0 || cellIndex >= numCells()) return;
  nodes.assign(nodeList.begin() + starts[cellIndex], nodeList.begin() + starts[cellIndex + 1]);
}

void PbIndexedNodes::arrays(const float*& x, const float*& y, const float*& z) const {
  x = xs.data(), y = ys.data(), z = zs.empty() ? nullptr : zs.data();
}

// --- PbIndexedMesh2D --------------------------------------------------------------

PbIndexedMesh2D::PbIndexedMesh2D(int flag) : PbMesh2D(flag) {
  CallJournal::record("PbIndexedMesh2D::PbIndexedMesh2D", flag);
  assign(0, nullptr, nullptr, nullptr, 0, nullptr, 0, nullptr);
}

PbIndexedMesh2D::PbIndexedMesh2D(const PbIndexedMesh2D& other) : PbIndexedMesh2D(other, Quiet()) {
  CallJournal::record("PbIndexedMesh2D::PbIndexedMesh2D(copy)", static_cast<const void*>(&other));
}

PbIndexedMesh2D::PbIndexedMesh2D(int numNodes, const float* x, const float* y, int numCells, const int* cellTypes,
                                 const int* cellIndex, int flag)
    : PbMesh2D(flag) {
  CallJournal::record("PbIndexedMesh2D::PbIndexedMesh2D", numNodes, journalArray(x, numNodes),
                      journalArray(y, numNodes), numCells, journalArray(cellTypes, numCells),
                      journalArray(cellIndex, listLength(numCells, cellTypes, 0)), flag);
  assign(numNodes, x, y, nullptr, numCells, cellTypes, 0, cellIndex);
}

PbIndexedMesh2D::PbIndexedMesh2D(int numNodes, const float* x, const float* y, const float* z, int numCells,
                                 const int* cellTypes, const int* cellIndex, int flag)
    : PbMesh2D(flag) {
  CallJournal::record("PbIndexedMesh2D::PbIndexedMesh2D", numNodes, journalArray(x, numNodes),
                      journalArray(y, numNodes), journalArray(z, numNodes), numCells,
                      journalArray(cellTypes, numCells), journalArray(cellIndex, listLength(numCells, cellTypes, 0)),
                      flag);
  assign(numNodes, x, y, z, numCells, cellTypes, 0, cellIndex);
}

void PbIndexedMesh2D::setGeometry(int numNodes, const float* x, const float* y, int numCells, const int* cellTypes,
                                  const int* cellIndex) {
  CallJournal::record("PbIndexedMesh2D::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),
                      numCells, journalArray(cellTypes, numCells),
                      journalArray(cellIndex, listLength(numCells, cellTypes, 0)));
  assign(numNodes, x, y, nullptr, numCells, cellTypes, 0, cellIndex);
}

void PbIndexedMesh2D::setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells,
                                  const int* cellTypes, const int* cellIndex) {
  CallJournal::record("PbIndexedMesh2D::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),
                      journalArray(z, numNodes), numCells, journalArray(cellTypes, numCells),
                      journalArray(cellIndex, listLength(numCells, cellTypes, 0)));
  assign(numNodes, x, y, z, numCells, cellTypes, 0, cellIndex);
}

void PbIndexedMesh2D::assign(int numNodes, const float* x, const float* y, const float* z, int numCells,
                             const int* cellTypes, int fixed, const int* cellIndex) {
  geometry.assign(numNodes, x, y, z, numCells, cellTypes, fixed, cellIndex);
  geometryChanged(geometry.numNodes(), geometry.numCells());
}

void PbIndexedMesh2D::getNodes(int& numNodes, const float*& x, const float*& y, const float*& z) const {
  CallJournal::record("PbIndexedMesh2D::getNodes");
  numNodes = geometry.numNodes();
  geometry.arrays(x, y, z);
}

void PbIndexedMesh2D::getNodes(int& numNodes, const float*& x, const float*& y) const {
  CallJournal::record("PbIndexedMesh2D::getNodes(2D)");
  numNodes = geometry.numNodes();
  const float* z;
  geometry.arrays(x, y, z);
}

void PbIndexedMesh2D::setElemOrientation(ElemOrientation o) {
  CallJournal::record("PbIndexedMesh2D::setElemOrientation", static_cast<int>(o));
  orientation = o;
}

void PbIndexedMesh2D::setCoordinates(const float* x, const float* y, const float* z) {
  const long n = geometry.numNodes();
  CallJournal::record("PbIndexedMesh2D::setCoordinates", journalArray(x, n), journalArray(y, n), journalArray(z, n));
  geometry.replace(x, y, z);
  geometryChanged(geometry.numNodes(), geometry.numCells());
}

void PbIndexedMesh2D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                     int& nz) const {
  CallJournal::record("PbIndexedMesh2D::getCoordinates");
  geometry.arrays(x, y, z);
  nx = ny = geometry.numNodes();
  nz = z == nullptr ? 0 : nx;
}

void PbIndexedMesh2D::cellNodes(int cellIndex, std::vector<int>& nodes) const { geometry.cellNodes(cellIndex, nodes); }

SbVec3f PbIndexedMesh2D::nodeCoord(int n) const { return geometry.node(n); }

// --- PbTriangleMesh2D / PbQuadrangleMesh2D ------------------------------------------------

#define TK_FIXED_MESH_2D(Class, Nodes)                                                                              \
  Class::Class(int flag) : PbIndexedMesh2D(Quiet(), flag) {                                                          \
    CallJournal::record(#Class "::" #Class, flag);                                                                   \
    assign(0, nullptr, nullptr, nullptr, 0, nullptr, Nodes, nullptr);                                                \
  }                                                                                                                  \
  Class::Class(const Class& other) : PbIndexedMesh2D(other, Quiet()) {                                               \
    CallJournal::record(#Class "::" #Class "(copy)", static_cast<const void*>(&other));                              \
  }                                                                                                                  \
  Class::Class(int numNodes, const float* x, const float* y, int numCells, const int* cells, int flag)               \
      : PbIndexedMesh2D(Quiet(), flag) {                                                                             \
    CallJournal::record(#Class "::" #Class, numNodes, journalArray(x, numNodes), journalArray(y, numNodes), numCells, \
                        journalArray(cells, listLength(numCells, nullptr, Nodes)), flag);                            \
    assign(numNodes, x, y, nullptr, numCells, nullptr, Nodes, cells);                                                \
  }                                                                                                                  \
  Class::Class(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cells,         \
               int flag)                                                                                             \
      : PbIndexedMesh2D(Quiet(), flag) {                                                                             \
    CallJournal::record(#Class "::" #Class, numNodes, journalArray(x, numNodes), journalArray(y, numNodes),           \
                        journalArray(z, numNodes), numCells, journalArray(cells, listLength(numCells, nullptr, Nodes)), \
                        flag);                                                                                       \
    assign(numNodes, x, y, z, numCells, nullptr, Nodes, cells);                                                      \
  }                                                                                                                  \
  void Class::setGeometry(int numNodes, const float* x, const float* y, int numCells, const int* cells) {            \
    CallJournal::record(#Class "::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),      \
                        numCells, journalArray(cells, listLength(numCells, nullptr, Nodes)));                        \
    assign(numNodes, x, y, nullptr, numCells, nullptr, Nodes, cells);                                                \
  }                                                                                                                  \
  void Class::setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells,                \
                          const int* cells) {                                                                        \
    CallJournal::record(#Class "::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),      \
                        journalArray(z, numNodes), numCells, journalArray(cells, listLength(numCells, nullptr, Nodes))); \
    assign(numNodes, x, y, z, numCells, nullptr, Nodes, cells);                                                      \
  }

TK_FIXED_MESH_2D(PbTriangleMesh2D, 3)
TK_FIXED_MESH_2D(PbQuadrangleMesh2D, 4)

void PbTriangleMesh2D::setGeometry(int numNodes, const float* x, const float* y) {
  CallJournal::record("PbTriangleMesh2D::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes));
  std::vector<int> triangles = fan(numNodes);
  assign(numNodes, x, y, nullptr, static_cast<int>(triangles.size() / 3), nullptr, 3, triangles.data());
}

// --- PbIndexedMesh3D --------------------------------------------------------------------------

PbIndexedMesh3D::PbIndexedMesh3D(int flag) : PbMesh3D(flag) {
  CallJournal::record("PbIndexedMesh3D::PbIndexedMesh3D", flag);
  assign(0, nullptr, nullptr, nullptr, 0, nullptr, 0, nullptr);
}

PbIndexedMesh3D::PbIndexedMesh3D(const PbIndexedMesh3D& other) : PbIndexedMesh3D(other, Quiet()) {
  CallJournal::record("PbIndexedMesh3D::PbIndexedMesh3D(copy)", static_cast<const void*>(&other));
}

PbIndexedMesh3D::PbIndexedMesh3D(int numNodes, const float* x, const float* y, const float* z, int numCells,
                                 const int* cellTypes, const int* cellIndex, int flag)
    : PbMesh3D(flag) {
  CallJournal::record("PbIndexedMesh3D::PbIndexedMesh3D", numNodes, journalArray(x, numNodes),
                      journalArray(y, numNodes), journalArray(z, numNodes), numCells,
                      journalArray(cellTypes, numCells), journalArray(cellIndex, listLength(numCells, cellTypes, 0)),
                      flag);
  assign(numNodes, x, y, z, numCells, cellTypes, 0, cellIndex);
}

void PbIndexedMesh3D::setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells,
                                  const int* cellTypes, const int* cellIndex) {
  CallJournal::record("PbIndexedMesh3D::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),
                      journalArray(z, numNodes), numCells, journalArray(cellTypes, numCells),
                      journalArray(cellIndex, listLength(numCells, cellTypes, 0)));
  assign(numNodes, x, y, z, numCells, cellTypes, 0, cellIndex);
}

void PbIndexedMesh3D::assign(int numNodes, const float* x, const float* y, const float* z, int numCells,
                             const int* cellTypes, int fixed, const int* cellIndex) {
  geometry.assign(numNodes, x, y, z != nullptr ? z : std::vector<float>(std::max(numNodes, 0)).data(), numCells,
                  cellTypes, fixed, cellIndex);
  geometryChanged(geometry.numNodes(), geometry.numCells());
}

void PbIndexedMesh3D::getNodes(int& numNodes, const float*& x, const float*& y, const float*& z) const {
  CallJournal::record("PbIndexedMesh3D::getNodes");
  numNodes = geometry.numNodes();
  geometry.arrays(x, y, z);
}

void PbIndexedMesh3D::setCoordinates(const float* x, const float* y, const float* z) {
  const long n = geometry.numNodes();
  CallJournal::record("PbIndexedMesh3D::setCoordinates", journalArray(x, n), journalArray(y, n), journalArray(z, n));
  geometry.replace(x, y, z);
  geometryChanged(geometry.numNodes(), geometry.numCells());
}

void PbIndexedMesh3D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                     int& nz) const {
  CallJournal::record("PbIndexedMesh3D::getCoordinates");
  geometry.arrays(x, y, z);
  nx = ny = nz = geometry.numNodes();
}

void PbIndexedMesh3D::cellNodes(int cellIndex, std::vector<int>& nodes) const { geometry.cellNodes(cellIndex, nodes); }

SbVec3f PbIndexedMesh3D::nodeCoord(int n) const { return geometry.node(n); }

// --- PbTetrahedronMesh3D / PbHexahedronMesh3D -------------------------------------------------

#define TK_FIXED_MESH_3D(Class, Nodes)                                                                              \
  Class::Class(int flag) : PbIndexedMesh3D(Quiet(), flag) {                                                          \
    CallJournal::record(#Class "::" #Class, flag);                                                                   \
    assign(0, nullptr, nullptr, nullptr, 0, nullptr, Nodes, nullptr);                                                \
  }                                                                                                                  \
  Class::Class(const Class& other) : PbIndexedMesh3D(other, Quiet()) {                                               \
    CallJournal::record(#Class "::" #Class "(copy)", static_cast<const void*>(&other));                              \
  }                                                                                                                  \
  Class::Class(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cells,         \
               int flag)                                                                                             \
      : PbIndexedMesh3D(Quiet(), flag) {                                                                             \
    CallJournal::record(#Class "::" #Class, numNodes, journalArray(x, numNodes), journalArray(y, numNodes),           \
                        journalArray(z, numNodes), numCells, journalArray(cells, listLength(numCells, nullptr, Nodes)), \
                        flag);                                                                                       \
    assign(numNodes, x, y, z, numCells, nullptr, Nodes, cells);                                                      \
  }                                                                                                                  \
  void Class::setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells,                \
                          const int* cells) {                                                                        \
    CallJournal::record(#Class "::setGeometry", numNodes, journalArray(x, numNodes), journalArray(y, numNodes),      \
                        journalArray(z, numNodes), numCells, journalArray(cells, listLength(numCells, nullptr, Nodes))); \
    assign(numNodes, x, y, z, numCells, nullptr, Nodes, cells);                                                      \
  }

TK_FIXED_MESH_3D(PbTetrahedronMesh3D, 4)
TK_FIXED_MESH_3D(PbHexahedronMesh3D, 8)
