#include <Corvel/CallJournal.h>
#include <Tavrel/PbCartesianGrid2D.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbParalCartesianGrid2D.h>
#include <Tavrel/PbPolarGrid2D.h>
#include <Tavrel/PbRegularCartesianGrid2D.h>

#include <algorithm>
#include <cmath>

#include "MeshSupport.h"


// --- PbGrid2D -------------------------------------------------------------------

void PbGrid2D::assignGrid(int nx, int ny, const float* z) {
  numX = std::max(nx, 0);
  numY = std::max(ny, 0);
  if (z == nullptr)
    zs.clear();
  else
    zs.assign(z, z + nodeCount());
}

void PbGrid2D::setElevations(const float* z) {
  if (z != nullptr) zs.assign(z, z + nodeCount());
}

void PbGrid2D::gridChanged() {
  const int cells = numX > 1 && numY > 1 ? (numX - 1) * (numY - 1) : 0;
  geometryChanged(static_cast<int>(nodeCount()), cells);
}

SbVec3f PbGrid2D::nodeCoord(int nodeIndex) const {
  SbVec2f p = nodeXY(nodeIndex / numY, nodeIndex % numY);
  return SbVec3f(p[0], p[1], zs.empty() ? 0.0f : zs[nodeIndex]);
}

SbVec3f PbGrid2D::getNodeCoord(int i, int j) const {
  CallJournal::record("PbGrid2D::getNodeCoord", i, j);
  return nodeCoord(i * numY + j);
}

void PbGrid2D::getDim(int& nx, int& ny) const {
  CallJournal::record("PbGrid2D::getDim");
  nx = numX, ny = numY;
}

void PbGrid2D::cellNodes(int cellIndex, std::vector<int>& nodes) const {
  nodes.clear();
  if (numX < 2 || numY < 2 || cellIndex < 0 || cellIndex >= (numX - 1) * (numY - 1)) return;
  const int i = cellIndex / (numY - 1), j = cellIndex % (numY - 1);
  const int n = i * numY + j;
  nodes = {n, n + numY, n + numY + 1, n + 1};
}

// --- PbCartesianGrid2D --------------------------------------------------------------

PbCartesianGrid2D::PbCartesianGrid2D(int flag) : PbGrid2D(flag) {
  CallJournal::record("PbCartesianGrid2D::PbCartesianGrid2D", flag);
  gridChanged();
}

PbCartesianGrid2D::PbCartesianGrid2D(const PbCartesianGrid2D& other) : PbGrid2D(other), xs(other.xs), ys(other.ys) {
  CallJournal::record("PbCartesianGrid2D::PbCartesianGrid2D(copy)", static_cast<const void*>(&other));
}

PbCartesianGrid2D::PbCartesianGrid2D(int nx, int ny, const float* x, const float* y, int flag) : PbGrid2D(flag) {
  const long n = static_cast<long>(nx) * ny;
  CallJournal::record("PbCartesianGrid2D::PbCartesianGrid2D", nx, ny, journalArray(x, n), journalArray(y, n), flag);
  assign(nx, ny, x, y, nullptr);
}

PbCartesianGrid2D::PbCartesianGrid2D(int nx, int ny, const float* x, const float* y, const float* z, int flag)
    : PbGrid2D(flag) {
  const long n = static_cast<long>(nx) * ny;
  CallJournal::record("PbCartesianGrid2D::PbCartesianGrid2D", nx, ny, journalArray(x, n), journalArray(y, n),
                      journalArray(z, n), flag);
  assign(nx, ny, x, y, z);
}

void PbCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y) {
  const long n = static_cast<long>(nx) * ny;
  CallJournal::record("PbCartesianGrid2D::setGeometry", nx, ny, journalArray(x, n), journalArray(y, n));
  assign(nx, ny, x, y, nullptr);
}

void PbCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y, const float* z) {
  const long n = static_cast<long>(nx) * ny;
  CallJournal::record("PbCartesianGrid2D::setGeometry", nx, ny, journalArray(x, n), journalArray(y, n),
                      journalArray(z, n));
  assign(nx, ny, x, y, z);
}

void PbCartesianGrid2D::assign(int nx, int ny, const float* x, const float* y, const float* z) {
  assignGrid(nx, ny, z);
  tk::copyInto(xs, x, nodeCount());
  tk::copyInto(ys, y, nodeCount());
  gridChanged();
}

void PbCartesianGrid2D::setCoordinates(const float* x, const float* y, const float* z) {
  const long n = nodeCount();
  CallJournal::record("PbCartesianGrid2D::setCoordinates", journalArray(x, n), journalArray(y, n), journalArray(z, n));
  if (x != nullptr) tk::copyInto(xs, x, n);
  if (y != nullptr) tk::copyInto(ys, y, n);
  setElevations(z);
  gridChanged();
}

void PbCartesianGrid2D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                       int& nz) const {
  CallJournal::record("PbCartesianGrid2D::getCoordinates");
  x = xs.data(), y = ys.data(), z = elevations();
  nx = ny = static_cast<int>(nodeCount());
  nz = z == nullptr ? 0 : nx;
}

SbVec2f PbCartesianGrid2D::nodeXY(int i, int j) const {
  const int n = i * numY + j;
  return SbVec2f(xs[n], ys[n]);
}

// --- PbParalCartesianGrid2D -------------------------------------------------------------

PbParalCartesianGrid2D::PbParalCartesianGrid2D(int flag) : PbGrid2D(flag) {
  CallJournal::record("PbParalCartesianGrid2D::PbParalCartesianGrid2D", flag);
  gridChanged();
}

PbParalCartesianGrid2D::PbParalCartesianGrid2D(const PbParalCartesianGrid2D& other)
    : PbGrid2D(other), xs(other.xs), ys(other.ys) {
  CallJournal::record("PbParalCartesianGrid2D::PbParalCartesianGrid2D(copy)", static_cast<const void*>(&other));
}

PbParalCartesianGrid2D::PbParalCartesianGrid2D(int nx, int ny, const float* x, const float* y, int flag)
    : PbGrid2D(flag) {
  CallJournal::record("PbParalCartesianGrid2D::PbParalCartesianGrid2D", nx, ny, journalArray(x, nx),
                      journalArray(y, ny), flag);
  assign(nx, ny, x, y, nullptr);
}

PbParalCartesianGrid2D::PbParalCartesianGrid2D(int nx, int ny, const float* x, const float* y, const float* z, int flag)
    : PbGrid2D(flag) {
  CallJournal::record("PbParalCartesianGrid2D::PbParalCartesianGrid2D", nx, ny, journalArray(x, nx),
                      journalArray(y, ny), journalArray(z, static_cast<long>(nx) * ny), flag);
  assign(nx, ny, x, y, z);
}

void PbParalCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y) {
  CallJournal::record("PbParalCartesianGrid2D::setGeometry", nx, ny, journalArray(x, nx), journalArray(y, ny));
  assign(nx, ny, x, y, nullptr);
}

void PbParalCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y, const float* z) {
  CallJournal::record("PbParalCartesianGrid2D::setGeometry", nx, ny, journalArray(x, nx), journalArray(y, ny),
                      journalArray(z, static_cast<long>(nx) * ny));
  assign(nx, ny, x, y, z);
}

void PbParalCartesianGrid2D::assign(int nx, int ny, const float* x, const float* y, const float* z) {
  assignGrid(nx, ny, z);
  tk::copyInto(xs, x, numX);
  tk::copyInto(ys, y, numY);
  gridChanged();
}

void PbParalCartesianGrid2D::setCoordinates(const float* x, const float* y, const float* z) {
  CallJournal::record("PbParalCartesianGrid2D::setCoordinates", journalArray(x, numX), journalArray(y, numY),
                      journalArray(z, nodeCount()));
  if (x != nullptr) tk::copyInto(xs, x, numX);
  if (y != nullptr) tk::copyInto(ys, y, numY);
  setElevations(z);
  gridChanged();
}

void PbParalCartesianGrid2D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                            int& nz) const {
  CallJournal::record("PbParalCartesianGrid2D::getCoordinates");
  x = xs.data(), y = ys.data(), z = elevations();
  nx = numX, ny = numY;
  nz = z == nullptr ? 0 : static_cast<int>(nodeCount());
}

SbVec2f PbParalCartesianGrid2D::nodeXY(int i, int j) const { return SbVec2f(xs[i], ys[j]); }

PbCell* PbParalCartesianGrid2D::newCell(int cellIndex) const { return tk::gridCell(this, PbCell::Kind::Pixel, cellIndex); }

// --- PbPolarGrid2D ---------------------------------------------------------------------------

PbPolarGrid2D::PbPolarGrid2D(int flag) : PbGrid2D(flag) {
  CallJournal::record("PbPolarGrid2D::PbPolarGrid2D", flag);
  gridChanged();
}

PbPolarGrid2D::PbPolarGrid2D(const PbPolarGrid2D& other) : PbGrid2D(other), radii(other.radii), angles(other.angles) {
  CallJournal::record("PbPolarGrid2D::PbPolarGrid2D(copy)", static_cast<const void*>(&other));
}

PbPolarGrid2D::PbPolarGrid2D(int nx, int ny, const float* r, const float* a, int flag) : PbGrid2D(flag) {
  CallJournal::record("PbPolarGrid2D::PbPolarGrid2D", nx, ny, journalArray(r, nx), journalArray(a, ny), flag);
  assign(nx, ny, r, a, nullptr);
}

PbPolarGrid2D::PbPolarGrid2D(int nx, int ny, const float* r, const float* a, const float* z, int flag)
    : PbGrid2D(flag) {
  CallJournal::record("PbPolarGrid2D::PbPolarGrid2D", nx, ny, journalArray(r, nx), journalArray(a, ny),
                      journalArray(z, static_cast<long>(nx) * ny), flag);
  assign(nx, ny, r, a, z);
}

void PbPolarGrid2D::setGeometry(int nx, int ny, const float* r, const float* a) {
  CallJournal::record("PbPolarGrid2D::setGeometry", nx, ny, journalArray(r, nx), journalArray(a, ny));
  assign(nx, ny, r, a, nullptr);
}

void PbPolarGrid2D::setGeometry(int nx, int ny, const float* r, const float* a, const float* z) {
  CallJournal::record("PbPolarGrid2D::setGeometry", nx, ny, journalArray(r, nx), journalArray(a, ny),
                      journalArray(z, static_cast<long>(nx) * ny));
  assign(nx, ny, r, a, z);
}

void PbPolarGrid2D::assign(int nx, int ny, const float* r, const float* a, const float* z) {
  assignGrid(nx, ny, z);
  tk::copyInto(radii, r, numX);
  tk::copyInto(angles, a, numY);
  gridChanged();
}

SbVec2f PbPolarGrid2D::nodeXY(int i, int j) const {
  const double theta = angles[j] * M_PI / 180.0;
  return SbVec2f(static_cast<float>(radii[i] * std::cos(theta)), static_cast<float>(radii[i] * std::sin(theta)));
}

// --- PbRegularCartesianGrid2D ------------------------------------------------------------------

PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(int flag) : PbGrid2D(flag) {
  CallJournal::record("PbRegularCartesianGrid2D::PbRegularCartesianGrid2D", flag);
  gridChanged();
}

PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(const PbRegularCartesianGrid2D& other)
    : PbGrid2D(other), xmin(other.xmin), ymin(other.ymin), xmax(other.xmax), ymax(other.ymax) {
  CallJournal::record("PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(copy)", static_cast<const void*>(&other));
}

PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(int nx, int ny, float x0, float y0, float x1, float y1, int flag)
    : PbGrid2D(flag) {
  CallJournal::record("PbRegularCartesianGrid2D::PbRegularCartesianGrid2D", nx, ny, x0, y0, x1, y1, flag);
  assign(nx, ny, x0, y0, x1, y1, nullptr);
}

PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(int nx, int ny, float x0, float y0, float x1, float y1,
                                                   const float* z, int flag)
    : PbGrid2D(flag) {
  CallJournal::record("PbRegularCartesianGrid2D::PbRegularCartesianGrid2D", nx, ny, x0, y0, x1, y1,
                      journalArray(z, static_cast<long>(nx) * ny), flag);
  assign(nx, ny, x0, y0, x1, y1, z);
}

PbRegularCartesianGrid2D::PbRegularCartesianGrid2D(int nx, int ny, const PbRegularCartesianGrid2D& grid)
    : PbGrid2D(grid.duplicationFlag()) {
  CallJournal::record("PbRegularCartesianGrid2D::PbRegularCartesianGrid2D", nx, ny, static_cast<const void*>(&grid));
  assign(nx, ny, grid.xmin, grid.ymin, grid.xmax, grid.ymax, nullptr);
}

void PbRegularCartesianGrid2D::setGeometry(int nx, int ny, float x0, float y0, float x1, float y1) {
  CallJournal::record("PbRegularCartesianGrid2D::setGeometry", nx, ny, x0, y0, x1, y1);
  assign(nx, ny, x0, y0, x1, y1, nullptr);
}

void PbRegularCartesianGrid2D::setGeometry(int nx, int ny, float x0, float y0, float x1, float y1, const float* z) {
  CallJournal::record("PbRegularCartesianGrid2D::setGeometry", nx, ny, x0, y0, x1, y1,
                      journalArray(z, static_cast<long>(nx) * ny));
  assign(nx, ny, x0, y0, x1, y1, z);
}

void PbRegularCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y) {
  CallJournal::record("PbRegularCartesianGrid2D::setGeometry", nx, ny, journalArray(x, nx), journalArray(y, ny));
  assign(nx, ny, nx > 0 && x ? x[0] : 0, ny > 0 && y ? y[0] : 0, nx > 0 && x ? x[nx - 1] : 0, ny > 0 && y ? y[ny - 1] : 0,
         nullptr);
}

void PbRegularCartesianGrid2D::setGeometry(int nx, int ny, const float* x, const float* y, const float* z) {
  CallJournal::record("PbRegularCartesianGrid2D::setGeometry", nx, ny, journalArray(x, nx), journalArray(y, ny),
                      journalArray(z, static_cast<long>(nx) * ny));
  assign(nx, ny, nx > 0 && x ? x[0] : 0, ny > 0 && y ? y[0] : 0, nx > 0 && x ? x[nx - 1] : 0, ny > 0 && y ? y[ny - 1] : 0,
         z);
}

void PbRegularCartesianGrid2D::assign(int nx, int ny, float x0, float y0, float x1, float y1, const float* z) {
  assignGrid(nx, ny, z);
  xmin = x0, ymin = y0, xmax = x1, ymax = y1;
  gridChanged();
}

SbVec2f PbRegularCartesianGrid2D::nodeXY(int i, int j) const {
  auto at = [](float lo, float hi, int k, int n) { return n > 1 ? lo + (hi - lo) * k / static_cast<float>(n - 1) : lo; };
  return SbVec2f(at(xmin, xmax, i, numX), at(ymin, ymax, j, numY));
}

PbCell* PbRegularCartesianGrid2D::newCell(int cellIndex) const {
  return tk::gridCell(this, PbCell::Kind::Pixel, cellIndex);
}
