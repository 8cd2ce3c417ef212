#include <Corvel/CallJournal.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbHexahedronCell.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PbPixelCell.h>
#include <Tavrel/PbPyramidCell.h>
#include <Tavrel/PbQuadrangleCell.h>
#include <Tavrel/PbTetrahedronCell.h>
#include <Tavrel/PbTriangleCell.h>
#include <Tavrel/PbVoxelCell.h>
#include <Tavrel/PbWedgeCell.h>

#include <algorithm>
#include <cmath>

namespace {
using Edge = int[2];
using Tri = int[3];
using Tet = int[4];

const Edge kTriangleEdges[] = {{0, 1}, {1, 2}, {2, 0}};
const Edge kQuadEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}};
const Edge kTetEdges[] = {{0, 1}, {1, 2}, {2, 0}, {0, 3}, {1, 3}, {2, 3}};
const Edge kPyramidEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {0, 4}, {1, 4}, {2, 4}, {3, 4}};
const Edge kWedgeEdges[] = {{0, 1}, {1, 2}, {2, 0}, {3, 4}, {4, 5}, {5, 3}, {0, 3}, {1, 4}, {2, 5}};
const Edge kHexEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
                          {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
const Tri kTriangleTris[] = {{0, 1, 2}};
const Tri kQuadTris[] = {{0, 1, 2}, {0, 2, 3}};
const Tet kTetTets[] = {{0, 1, 2, 3}};
const Tet kPyramidTets[] = {{0, 1, 2, 4}, {0, 2, 3, 4}};
const Tet kWedgeTets[] = {{0, 1, 2, 3}, {1, 2, 3, 4}, {2, 3, 4, 5}};
const Tet kHexTets[] = {{0, 1, 2, 6}, {0, 2, 3, 6}, {0, 3, 7, 6}, {0, 7, 4, 6}, {0, 4, 5, 6}, {0, 5, 1, 6}};

// Shape functions (w) and their derivatives by u, v, w (du, dv, dw).
void triangle(const float* p, float* w, float* du, float* dv, float* dw) {
  w[0] = 1 - p[0] - p[1], w[1] = p[0], w[2] = p[1];
  du[0] = -1, du[1] = 1, du[2] = 0;
  dv[0] = -1, dv[1] = 0, dv[2] = 1;
  std::fill(dw, dw + 3, 0.0f);
}

void bilinear(float u, float v, float* w, float* du, float* dv) {
  w[0] = (1 - u) * (1 - v), w[1] = u * (1 - v), w[2] = u * v, w[3] = (1 - u) * v;
  du[0] = -(1 - v), du[1] = 1 - v, du[2] = v, du[3] = -v;
  dv[0] = -(1 - u), dv[1] = -u, dv[2] = u, dv[3] = 1 - u;
}

void quadrangle(const float* p, float* w, float* du, float* dv, float* dw) {
  bilinear(p[0], p[1], w, du, dv);
  std::fill(dw, dw + 4, 0.0f);
}

void tetrahedron(const float* p, float* w, float* du, float* dv, float* dw) {
  w[0] = 1 - p[0] - p[1] - p[2], w[1] = p[0], w[2] = p[1], w[3] = p[2];
  du[0] = -1, du[1] = 1, du[2] = 0, du[3] = 0;
  dv[0] = -1, dv[1] = 0, dv[2] = 1, dv[3] = 0;
  dw[0] = -1, dw[1] = 0, dw[2] = 0, dw[3] = 1;
}

void pyramid(const float* p, float* w, float* du, float* dv, float* dw) {
  float bw[4], bu[4], bv[4];
  bilinear(p[0], p[1], bw, bu, bv);
  const float t = 1 - p[2];
  for (int i = 0; i < 4; ++i) w[i] = bw[i] * t, du[i] = bu[i] * t, dv[i] = bv[i] * t, dw[i] = -bw[i];
  w[4] = p[2], du[4] = 0, dv[4] = 0, dw[4] = 1;
}

void wedge(const float* p, float* w, float* du, float* dv, float* dw) {
  float tw[3], tu[3], tv[3], tz[3];
  triangle(p, tw, tu, tv, tz);
  const float lo = 1 - p[2], hi = p[2];
  for (int i = 0; i < 3; ++i) {
    w[i] = tw[i] * lo, du[i] = tu[i] * lo, dv[i] = tv[i] * lo, dw[i] = -tw[i];
    w[i + 3] = tw[i] * hi, du[i + 3] = tu[i] * hi, dv[i + 3] = tv[i] * hi, dw[i + 3] = tw[i];
  }
}

void hexahedron(const float* p, float* w, float* du, float* dv, float* dw) {
  float bw[4], bu[4], bv[4];
  bilinear(p[0], p[1], bw, bu, bv);
  const float lo = 1 - p[2], hi = p[2];
  for (int i = 0; i < 4; ++i) {
    w[i] = bw[i] * lo, du[i] = bu[i] * lo, dv[i] = bv[i] * lo, dw[i] = -bw[i];
    w[i + 4] = bw[i] * hi, du[i + 4] = bu[i] * hi, dv[i + 4] = bv[i] * hi, dw[i + 4] = bw[i];
  }
}

bool inUnit(float x, float t) { return x >= -t && x <= 1 + t; }
bool insideTriangle(const float* p, float t) { return p[0] >= -t && p[1] >= -t && p[0] + p[1] <= 1 + t; }
bool insideSquare(const float* p, float t) { return inUnit(p[0], t) && inUnit(p[1], t); }
bool insideTet(const float* p, float t) {
  return p[0] >= -t && p[1] >= -t && p[2] >= -t && p[0] + p[1] + p[2] <= 1 + t;
}
bool insideWedge(const float* p, float t) { return insideTriangle(p, t) && inUnit(p[2], t); }
bool insideCube(const float* p, float t) { return insideSquare(p, t) && inUnit(p[2], t); }

float triangleArea(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c) {
  return 0.5f * (b - a).cross(c - a).length();
}
float tetVolume(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c, const SbVec3f& d) {
  return std::fabs((b - a).cross(c - a).dot(d - a)) / 6.0f;
}
}  // namespace

struct PbCell::Shape {
  int dimension;
  int numNodes;
  int numFacets;
  int numEdges;
  const Edge* edges;
  int numTris;
  const Tri* tris;
  int numTets;
  const Tet* tets;
  void (*functions)(const float* p, float* w, float* du, float* dv, float* dw);
  bool (*inside)(const float* p, float tolerance);
  float start[3];
};

namespace {
const PbCell::Shape kShapes[] = {
    {2, 3, 3, 3, kTriangleEdges, 1, kTriangleTris, 0, nullptr, triangle, insideTriangle, {1 / 3.0f, 1 / 3.0f, 0}},
    {2, 4, 4, 4, kQuadEdges, 2, kQuadTris, 0, nullptr, quadrangle, insideSquare, {0.5f, 0.5f, 0}},
    {2, 4, 4, 4, kQuadEdges, 2, kQuadTris, 0, nullptr, quadrangle, insideSquare, {0.5f, 0.5f, 0}},
    {3, 4, 4, 6, kTetEdges, 0, nullptr, 1, kTetTets, tetrahedron, insideTet, {0.25f, 0.25f, 0.25f}},
    {3, 5, 5, 8, kPyramidEdges, 0, nullptr, 2, kPyramidTets, pyramid, insideCube, {0.5f, 0.5f, 0.25f}},
    {3, 6, 5, 9, kWedgeEdges, 0, nullptr, 3, kWedgeTets, wedge, insideWedge, {1 / 3.0f, 1 / 3.0f, 0.5f}},
    {3, 8, 6, 12, kHexEdges, 0, nullptr, 6, kHexTets, hexahedron, insideCube, {0.5f, 0.5f, 0.5f}},
    {3, 8, 6, 12, kHexEdges, 0, nullptr, 6, kHexTets, hexahedron, insideCube, {0.5f, 0.5f, 0.5f}},
};
const PbCell::Shape& shapeOf(PbCell::Kind kind) { return kShapes[static_cast<int>(kind)]; }
constexpr int kMaxNodes = 8;
}  // namespace

PbCell::PbCell(const Shape& shape, const PbMesh* mesh) : shape(&shape), mesh(mesh) {}

PbCell::~PbCell() = default;

void PbCell::attach(int cellIndex, const std::vector<int>& nodes) {
  index = cellIndex;
  nodeIndices = nodes;
  nodeCoords.clear();
  for (int n : nodes) nodeCoords.push_back(mesh->nodeAt(n));
}

bool PbCell::kindOf(int dimension, int numNodes, Kind& kind) {
  if (dimension == 2 && (numNodes == 3 || numNodes == 4)) {
    kind = numNodes == 3 ? Kind::Triangle : Kind::Quadrangle;
    return true;
  }
  if (dimension != 3) return false;
  switch (numNodes) {
    case 4: kind = Kind::Tetrahedron; return true;
    case 5: kind = Kind::Pyramid; return true;
    case 6: kind = Kind::Wedge; return true;
    case 8: kind = Kind::Hexahedron; return true;
    default: return false;
  }
}

PbCell* PbCell::make(Kind kind, const PbMesh* mesh, int index, const std::vector<int>& nodes) {
  switch (kind) {
    case Kind::Triangle: return new PbTriangleCell(mesh, index, nodes);
    case Kind::Quadrangle: return new PbQuadrangleCell(mesh, index, nodes);
    case Kind::Pixel: return new PbPixelCell(mesh, index, nodes);
    case Kind::Tetrahedron: return new PbTetrahedronCell(mesh, index, nodes);
    case Kind::Pyramid: return new PbPyramidCell(mesh, index, nodes);
    case Kind::Wedge: return new PbWedgeCell(mesh, index, nodes);
    case Kind::Hexahedron: return new PbHexahedronCell(mesh, index, nodes);
    case Kind::Voxel: return new PbVoxelCell(mesh, index, nodes);
  }
  return nullptr;
}

int PbCell::getNumFacets() const {
  CallJournal::record("PbCell::getNumFacets");
  return shape->numFacets;
}

int PbCell::getNumEdges() const {
  CallJournal::record("PbCell::getNumEdges");
  return shape->numEdges;
}

int PbCell::getNumNodes() const {
  CallJournal::record("PbCell::getNumNodes");
  return static_cast<int>(nodeIndices.size());
}

int PbCell::getIndex() const {
  CallJournal::record("PbCell::getIndex");
  return index;
}

int PbCell::getNodeIndex(int i) const {
  CallJournal::record("PbCell::getNodeIndex", i);
  return nodeIndices[i];
}

SbVec3f PbCell::getNodeCoord(int i) const {
  CallJournal::record("PbCell::getNodeCoord", i);
  return nodeCoords[i];
}

float PbCell::getLongestEdgeLength() const {
  CallJournal::record("PbCell::getLongestEdgeLength");
  if (nodeCoords.empty()) return 0.0f;
  float longest = 0.0f;
  for (int e = 0; e < shape->numEdges; ++e)
    longest = std::max(longest, (nodeCoords[shape->edges[e][1]] - nodeCoords[shape->edges[e][0]]).length());
  return longest;
}

float PbCell::volume() const {
  if (nodeCoords.empty()) return 0.0f;
  float sum = 0.0f;
  for (int t = 0; t < shape->numTets; ++t) {
    const int* n = shape->tets[t];
    sum += tetVolume(nodeCoords[n[0]], nodeCoords[n[1]], nodeCoords[n[2]], nodeCoords[n[3]]);
  }
  return sum;
}

float PbCell::area() const {
  if (nodeCoords.empty()) return 0.0f;
  float sum = 0.0f;
  for (int t = 0; t < shape->numTris; ++t) {
    const int* n = shape->tris[t];
    sum += triangleArea(nodeCoords[n[0]], nodeCoords[n[1]], nodeCoords[n[2]]);
  }
  return sum;
}

SbBox3f PbCell::box() const {
  SbBox3f b;
  for (const SbVec3f& p : nodeCoords) b.extendBy(p);
  return b;
}

float PbCell::getVolume() const {
  CallJournal::record("PbCell::getVolume");
  return volume();
}

float PbCell::getArea() const {
  CallJournal::record("PbCell::getArea");
  return area();
}

SbBox3f PbCell::getBoundingBox() const {
  CallJournal::record("PbCell::getBoundingBox");
  return box();
}

void PbCell::getBounds(float& xmin, float& ymin, float& zmin, float& xmax, float& ymax, float& zmax) const {
  CallJournal::record("PbCell::getBounds");
  if (nodeCoords.empty()) return;
  SbBox3f b = box();
  xmin = b.getMin()[0], ymin = b.getMin()[1], zmin = b.getMin()[2];
  xmax = b.getMax()[0], ymax = b.getMax()[1], zmax = b.getMax()[2];
}

SbVec3f PbCell::getCenter() const {
  CallJournal::record("PbCell::getCenter");
  SbVec3f sum;
  if (nodeCoords.empty()) return sum;
  for (const SbVec3f& p : nodeCoords) sum = sum + p;
  return sum * (1.0f / static_cast<float>(nodeCoords.size()));
}

int PbCell::locatePoint(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const {
  CallJournal::record("PbCell::locatePoint", point, tolerance);
  return locate(point, tolerance, pcoord);
}

int PbCell::locate(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const {
  if (nodeCoords.empty()) return 0;
  const int dim = shape->dimension;
  const int n = shape->numNodes;
  float p[3] = {shape->start[0], shape->start[1], shape->start[2]};
  float w[kMaxNodes], d[3][kMaxNodes];
  for (int iteration = 0; iteration < 40; ++iteration) {
    shape->functions(p, w, d[0], d[1], d[2]);
    double r[3] = {0, 0, 0}, j[3][3] = {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}};
    for (int a = 0; a < dim; ++a) {
      r[a] = -point[a];
      for (int i = 0; i < n; ++i) {
        r[a] += w[i] * nodeCoords[i][a];
        for (int b = 0; b < dim; ++b) j[a][b] += d[b][i] * nodeCoords[i][a];
      }
    }
    double step[3] = {0, 0, 0};
    if (dim == 2) {
      double det = j[0][0] * j[1][1] - j[0][1] * j[1][0];
      if (std::fabs(det) < 1e-20) return 0;
      step[0] = (r[0] * j[1][1] - r[1] * j[0][1]) / det;
      step[1] = (j[0][0] * r[1] - j[1][0] * r[0]) / det;
    } else {
      double det = j[0][0] * (j[1][1] * j[2][2] - j[1][2] * j[2][1]) - j[0][1] * (j[1][0] * j[2][2] - j[1][2] * j[2][0]) +
                   j[0][2] * (j[1][0] * j[2][1] - j[1][1] * j[2][0]);
      if (std::fabs(det) < 1e-20) return 0;
      for (int c = 0; c < 3; ++c) {
        double m[3][3];
        for (int a = 0; a < 3; ++a)
          for (int b = 0; b < 3; ++b) m[a][b] = b == c ? r[a] : j[a][b];
        step[c] = (m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
                   m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0])) /
                  det;
      }
    }
    double moved = 0;
    for (int c = 0; c < dim; ++c) {
      p[c] -= static_cast<float>(step[c]);
      moved = std::max(moved, std::fabs(step[c]));
    }
    pcoord.setValue(p[0], p[1], dim == 2 ? 0.0f : p[2]);
    if (moved < 1e-7) break;
  }
  return shape->inside(p, tolerance) ? 1 : 0;
}

long PbCell::valueSpan() const {
  return nodeIndices.empty() ? 0 : 1L + *std::max_element(nodeIndices.begin(), nodeIndices.end());
}

float PbCell::interpolate(const SbVec3f& pcoord, const float* values) const {
  if (values == nullptr || nodeCoords.empty()) return 0.0f;
  float w[kMaxNodes], d[3][kMaxNodes];
  shape->functions(pcoord.getValue(), w, d[0], d[1], d[2]);
  float sum = 0.0f;
  for (int i = 0; i < shape->numNodes; ++i) sum += w[i] * values[nodeIndices[i]];
  return sum;
}

SbVec3f PbCell::interpolate(const SbVec3f& pcoord, const SbVec3f* vectors) const {
  SbVec3f sum;
  if (vectors == nullptr || nodeCoords.empty()) return sum;
  float w[kMaxNodes], d[3][kMaxNodes];
  shape->functions(pcoord.getValue(), w, d[0], d[1], d[2]);
  for (int i = 0; i < shape->numNodes; ++i) sum = sum + vectors[nodeIndices[i]] * w[i];
  return sum;
}

void PbCell::derivatives(const SbVec3f& pcoord, float* derivs) const {
  const int n = shape->numNodes;
  float w[kMaxNodes];
  shape->functions(pcoord.getValue(), w, derivs, derivs + n, derivs + 2 * n);
}

float PbCell::getValue(const SbVec3f& pcoord, const float* values) const {
  CallJournal::record("PbCell::getValue", pcoord, journalArray(values, valueSpan()));
  return interpolate(pcoord, values);
}

SbVec3f PbCell::getValue(const SbVec3f& pcoord, const SbVec3f* vectors) const {
  CallJournal::record("PbCell::getValue", pcoord, journalArray(vectors, valueSpan()));
  return interpolate(pcoord, vectors);
}

float PbCell::getValue(const float* pcoord, const float* values) const {
  CallJournal::record("PbCell::getValue(const float*)", journalArray(pcoord, 3), journalArray(values, valueSpan()));
  return interpolate(SbVec3f(pcoord), values);
}

SbVec3f PbCell::getValue(const float* pcoord, const SbVec3f* vectors) const {
  CallJournal::record("PbCell::getValue(const float*)", journalArray(pcoord, 3), journalArray(vectors, valueSpan()));
  return interpolate(SbVec3f(pcoord), vectors);
}

// --- the eight kinds ---------------------------------------------------------

#define TK_CELL_KIND(Class, KindName)                                                          \
  Class::Class(const PbMesh* mesh) : PbCell(shapeOf(Kind::KindName), mesh) {                   \
    CallJournal::record(#Class "::" #Class, static_cast<const void*>(mesh));                   \
  }                                                                                            \
  Class::Class(const Class& other) : PbCell(other) {                                           \
    CallJournal::record(#Class "::" #Class "(copy)", static_cast<const void*>(&other));        \
  }                                                                                            \
  Class::Class(const PbMesh* mesh, int index, const std::vector<int>& nodes)                   \
      : PbCell(shapeOf(Kind::KindName), mesh) {                                                \
    attach(index, nodes);                                                                      \
  }

#define TK_CELL_DERIVS(Class)                                                                  \
  void Class::getDerivs(const SbVec3f& pcoord, float* derivs) const {                          \
    CallJournal::record(#Class "::getDerivs", pcoord);                                          \
    derivatives(pcoord, derivs);                                                               \
  }

TK_CELL_KIND(PbTriangleCell, Triangle)
TK_CELL_KIND(PbQuadrangleCell, Quadrangle)
TK_CELL_KIND(PbPixelCell, Pixel)
TK_CELL_KIND(PbTetrahedronCell, Tetrahedron)
TK_CELL_KIND(PbPyramidCell, Pyramid)
TK_CELL_KIND(PbWedgeCell, Wedge)
TK_CELL_KIND(PbHexahedronCell, Hexahedron)
TK_CELL_KIND(PbVoxelCell, Voxel)
TK_CELL_DERIVS(PbQuadrangleCell)
TK_CELL_DERIVS(PbPyramidCell)
TK_CELL_DERIVS(PbWedgeCell)
TK_CELL_DERIVS(PbHexahedronCell)
