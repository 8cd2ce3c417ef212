#include <Corvel/CallJournal.h>
#include <Tavrel/PbCartesianGrid3D.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbParalCartesianGrid3D.h>
#include <Tavrel/PbRegularCartesianGrid3D.h>

#include <algorithm>

#include "MeshSupport.h"

// --- PbGrid3D -------------------------------------------------------------------

void PbGrid3D::assignGrid(int nx, int ny, int nz) {
  numX = std::max(nx, 0);
  numY = std::max(ny, 0);
  numZ = std::max(nz, 0);
}

void PbGrid3D::gridChanged() {
  const int cells = numX > 1 && numY > 1 && numZ > 1 ? (numX - 1) * (numY - 1) * (numZ - 1) : 0;
  geometryChanged(static_cast<int>(nodeCount()), cells);
}

SbVec3f PbGrid3D::nodeCoord(int nodeIndex) const {
  const int k = nodeIndex % numZ, t = nodeIndex / numZ;
  return nodeXYZ(t / numY, t % numY, k);
}

SbVec3f PbGrid3D::getNodeCoord(int i, int j, int k) const {
  CallJournal::record("PbGrid3D::getNodeCoord", i, j, k);
  return nodeXYZ(i, j, k);
}

void PbGrid3D::getDim(int& nx, int& ny, int& nz) const {
  CallJournal::record("PbGrid3D::getDim");
  nx = numX, ny = numY, nz = numZ;
}

void PbGrid3D::cellNodes(int cellIndex, std::vector<int>& nodes) const {
  nodes.clear();
  if (numX < 2 || numY < 2 || numZ < 2 || cellIndex < 0 || cellIndex >= (numX - 1) * (numY - 1) * (numZ - 1)) return;
  const int k = cellIndex % (numZ - 1), t = cellIndex / (numZ - 1);
  const int j = t % (numY - 1), i = t / (numY - 1);
  auto node = [this](int a, int b, int c) { return (a * numY + b) * numZ + c; };
  nodes = {node(i, j, k),     node(i + 1, j, k),     node(i + 1, j + 1, k),     node(i, j + 1, k),
           node(i, j, k + 1), node(i + 1, j, k + 1), node(i + 1, j + 1, k + 1), node(i, j + 1, k + 1)};
}

// --- PbCartesianGrid3D --------------------------------------------------------------

PbCartesianGrid3D::PbCartesianGrid3D(int flag) : PbGrid3D(flag) {
  CallJournal::record("PbCartesianGrid3D::PbCartesianGrid3D", flag);
  gridChanged();
}

PbCartesianGrid3D::PbCartesianGrid3D(const PbCartesianGrid3D& other)
    : PbGrid3D(other), xs(other.xs), ys(other.ys), zs(other.zs) {
  CallJournal::record("PbCartesianGrid3D::PbCartesianGrid3D(copy)", static_cast<const void*>(&other));
}

PbCartesianGrid3D::PbCartesianGrid3D(int nx, int ny, int nz, const float* x, const float* y, const float* z, int flag)
    : PbGrid3D(flag) {
  const long n = static_cast<long>(nx) * ny * nz;
  CallJournal::record("PbCartesianGrid3D::PbCartesianGrid3D", nx, ny, nz, journalArray(x, n), journalArray(y, n),
                      journalArray(z, n), flag);
  assign(nx, ny, nz, x, y, z);
}

void PbCartesianGrid3D::setGeometry(int nx, int ny, int nz, const float* x, const float* y, const float* z) {
  const long n = static_cast<long>(nx) * ny * nz;
  CallJournal::record("PbCartesianGrid3D::setGeometry", nx, ny, nz, journalArray(x, n), journalArray(y, n),
                      journalArray(z, n));
  assign(nx, ny, nz, x, y, z);
}

void PbCartesianGrid3D::assign(int nx, int ny, int nz, const float* x, const float* y, const float* z) {
  assignGrid(nx, ny, nz);
  tk::copyInto(xs, x, nodeCount());
  tk::copyInto(ys, y, nodeCount());
  tk::copyInto(zs, z, nodeCount());
  gridChanged();
}

void PbCartesianGrid3D::setCoordinates(const float* x, const float* y, const float* z) {
  const long n = nodeCount();
  CallJournal::record("PbCartesianGrid3D::setCoordinates", journalArray(x, n), journalArray(y, n), journalArray(z, n));
  if (x != nullptr) tk::copyInto(xs, x, n);
  if (y != nullptr) tk::copyInto(ys, y, n);
  if (z != nullptr) tk::copyInto(zs, z, n);
  gridChanged();
}

void PbCartesianGrid3D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                       int& nz) const {
  CallJournal::record("PbCartesianGrid3D::getCoordinates");
  x = xs.data(), y = ys.data(), z = zs.data();
  nx = ny = nz = static_cast<int>(nodeCount());
}

SbVec3f PbCartesianGrid3D::nodeXYZ(int i, int j, int k) const {
  const int n = (i * numY + j) * numZ + k;
  return SbVec3f(xs[n], ys[n], zs[n]);
}

// --- PbParalCartesianGrid3D -------------------------------------------------------------

PbParalCartesianGrid3D::PbParalCartesianGrid3D(int flag) : PbGrid3D(flag) {
  CallJournal::record("PbParalCartesianGrid3D::PbParalCartesianGrid3D", flag);
  gridChanged();
}

PbParalCartesianGrid3D::PbParalCartesianGrid3D(const PbParalCartesianGrid3D& other)
    : PbGrid3D(other), xs(other.xs), ys(other.ys), zs(other.zs) {
  CallJournal::record("PbParalCartesianGrid3D::PbParalCartesianGrid3D(copy)", static_cast<const void*>(&other));
}

PbParalCartesianGrid3D::PbParalCartesianGrid3D(int nx, int ny, int nz, const float* x, const float* y, const float* z,
                                               int flag)
    : PbGrid3D(flag) {
  CallJournal::record("PbParalCartesianGrid3D::PbParalCartesianGrid3D", nx, ny, nz, journalArray(x, nx),
                      journalArray(y, ny), journalArray(z, nz), flag);
  assign(nx, ny, nz, x, y, z);
}

void PbParalCartesianGrid3D::setGeometry(int nx, int ny, int nz, const float* x, const float* y, const float* z) {
  CallJournal::record("PbParalCartesianGrid3D::setGeometry", nx, ny, nz, journalArray(x, nx), journalArray(y, ny),
                      journalArray(z, nz));
  assign(nx, ny, nz, x, y, z);
}

void PbParalCartesianGrid3D::assign(int nx, int ny, int nz, const float* x, const float* y, const float* z) {
  assignGrid(nx, ny, nz);
  tk::copyInto(xs, x, numX);
  tk::copyInto(ys, y, numY);
  tk::copyInto(zs, z, numZ);
  gridChanged();
}

void PbParalCartesianGrid3D::setCoordinates(const float* x, const float* y, const float* z) {
  CallJournal::record("PbParalCartesianGrid3D::setCoordinates", journalArray(x, numX), journalArray(y, numY),
                      journalArray(z, numZ));
  if (x != nullptr) tk::copyInto(xs, x, numX);
  if (y != nullptr) tk::copyInto(ys, y, numY);
  if (z != nullptr) tk::copyInto(zs, z, numZ);
  gridChanged();
}

void PbParalCartesianGrid3D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                            int& nz) const {
  CallJournal::record("PbParalCartesianGrid3D::getCoordinates");
  x = xs.data(), y = ys.data(), z = zs.data();
  nx = numX, ny = numY, nz = numZ;
}

SbVec3f PbParalCartesianGrid3D::nodeXYZ(int i, int j, int k) const { return SbVec3f(xs[i], ys[j], zs[k]); }

PbCell* PbParalCartesianGrid3D::newCell(int cellIndex) const {
  return tk::gridCell(this, PbCell::Kind::Voxel, cellIndex);
}

// --- PbRegularCartesianGrid3D ------------------------------------------------------------------

PbRegularCartesianGrid3D::PbRegularCartesianGrid3D(int flag) : PbGrid3D(flag) {
  CallJournal::record("PbRegularCartesianGrid3D::PbRegularCartesianGrid3D", flag);
  gridChanged();
}

PbRegularCartesianGrid3D::PbRegularCartesianGrid3D(const PbRegularCartesianGrid3D& other) : PbGrid3D(other) {
  CallJournal::record("PbRegularCartesianGrid3D::PbRegularCartesianGrid3D(copy)", static_cast<const void*>(&other));
  std::copy(other.lo, other.lo + 3, lo);
  std::copy(other.hi, other.hi + 3, hi);
}

PbRegularCartesianGrid3D::PbRegularCartesianGrid3D(int nx, int ny, int nz, float x0, float y0, float z0, float x1,
                                                   float y1, float z1, int flag)
    : PbGrid3D(flag) {
  CallJournal::record("PbRegularCartesianGrid3D::PbRegularCartesianGrid3D", nx, ny, nz, x0, y0, z0, x1, y1, z1, flag);
  const float a[3] = {x0, y0, z0}, b[3] = {x1, y1, z1};
  assign(nx, ny, nz, a, b);
}

void PbRegularCartesianGrid3D::setGeometry(int nx, int ny, int nz, float x0, float y0, float z0, float x1, float y1,
                                           float z1) {
  CallJournal::record("PbRegularCartesianGrid3D::setGeometry", nx, ny, nz, x0, y0, z0, x1, y1, z1);
  const float a[3] = {x0, y0, z0}, b[3] = {x1, y1, z1};
  assign(nx, ny, nz, a, b);
}

void PbRegularCartesianGrid3D::setGeometry(int nx, int ny, int nz, const float* x, const float* y, const float* z) {
  CallJournal::record("PbRegularCartesianGrid3D::setGeometry", nx, ny, nz, journalArray(x, nx), journalArray(y, ny),
                      journalArray(z, nz));
  const int n[3] = {nx, ny, nz};
  const float* arrays[3] = {x, y, z};
  float a[3], b[3];
  for (int c = 0; c < 3; ++c) {
    a[c] = n[c] > 0 && arrays[c] ? arrays[c][0] : 0.0f;
    b[c] = n[c] > 0 && arrays[c] ? arrays[c][n[c] - 1] : 0.0f;
  }
  assign(nx, ny, nz, a, b);
}

void PbRegularCartesianGrid3D::assign(int nx, int ny, int nz, const float* a, const float* b) {
  assignGrid(nx, ny, nz);
  std::copy(a, a + 3, lo);
  std::copy(b, b + 3, hi);
  gridChanged();
}

SbVec3f PbRegularCartesianGrid3D::nodeXYZ(int i, int j, int k) const {
  const int index[3] = {i, j, k}, count[3] = {numX, numY, numZ};
  float p[3];
  for (int c = 0; c < 3; ++c)
    p[c] = count[c] > 1 ? lo[c] + (hi[c] - lo[c]) * index[c] / static_cast<float>(count[c] - 1) : lo[c];
  return SbVec3f(p);
}

PbCell* PbRegularCartesianGrid3D::newCell(int cellIndex) const {
  return tk::gridCell(this, PbCell::Kind::Voxel, cellIndex);
}
