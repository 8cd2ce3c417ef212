#include <Corvel/CallJournal.h>
#include <Tavrel/PbIrregularMesh1D.h>
#include <Tavrel/PbRegularMesh1D.h>

PbIrregularMesh1D::PbIrregularMesh1D() : PbMesh1D(1) {
  CallJournal::record("PbIrregularMesh1D::PbIrregularMesh1D");
  geometryChanged(0, 0);
}

PbIrregularMesh1D::PbIrregularMesh1D(const PbIrregularMesh1D& other) : PbMesh1D(other), xs(other.xs) {
  CallJournal::record("PbIrregularMesh1D::PbIrregularMesh1D(copy)", static_cast<const void*>(&other));
}

PbIrregularMesh1D::PbIrregularMesh1D(int numNodes, const float* x) : PbMesh1D(1) {
  CallJournal::record("PbIrregularMesh1D::PbIrregularMesh1D", numNodes, journalArray(x, numNodes));
  assign(numNodes, x);
}

void PbIrregularMesh1D::setGeometry(int numNodes, const float* x) {
  CallJournal::record("PbIrregularMesh1D::setGeometry", numNodes, journalArray(x, numNodes));
  assign(numNodes, x);
}

void PbIrregularMesh1D::assign(int numNodes, const float* x) {
  if (numNodes < 0) numNodes = 0;
  xs.assign(numNodes, 0.0f);
  if (x != nullptr) xs.assign(x, x + numNodes);
  geometryChanged(numNodes, segments(numNodes));
}

void PbIrregularMesh1D::setCoordinates(const float* x, const float* y, const float* z) {
  const int n = static_cast<int>(xs.size());
  CallJournal::record("PbIrregularMesh1D::setCoordinates", journalArray(x, n), journalArray(y, n), journalArray(z, n));
  if (x != nullptr) assign(n, x);
}

void PbIrregularMesh1D::getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny,
                                       int& nz) const {
  CallJournal::record("PbIrregularMesh1D::getCoordinates");
  x = xs.data();
  nx = static_cast<int>(xs.size());
  y = z = nullptr;
  ny = nz = 0;
}

SbVec3f PbIrregularMesh1D::nodeCoord(int nodeIndex) const { return SbVec3f(xs[nodeIndex], 0.0f, 0.0f); }

PbRegularMesh1D::PbRegularMesh1D() : PbMesh1D(1) {
  CallJournal::record("PbRegularMesh1D::PbRegularMesh1D");
  geometryChanged(0, 0);
}

PbRegularMesh1D::PbRegularMesh1D(const PbRegularMesh1D& other)
    : PbMesh1D(other), xmin(other.xmin), xmax(other.xmax) {
  CallJournal::record("PbRegularMesh1D::PbRegularMesh1D(copy)", static_cast<const void*>(&other));
}

PbRegularMesh1D::PbRegularMesh1D(int numNodes, float lo, float hi) : PbMesh1D(1) {
  CallJournal::record("PbRegularMesh1D::PbRegularMesh1D", numNodes, lo, hi);
  assign(numNodes, lo, hi);
}

void PbRegularMesh1D::setGeometry(int numNodes, float lo, float hi) {
  CallJournal::record("PbRegularMesh1D::setGeometry", numNodes, lo, hi);
  assign(numNodes, lo, hi);
}

void PbRegularMesh1D::assign(int numNodes, float lo, float hi) {
  xmin = lo;
  xmax = hi;
  geometryChanged(numNodes, segments(numNodes));
}

SbVec3f PbRegularMesh1D::nodeCoord(int nodeIndex) const {
  const int n = countNodes();
  const float x = n > 1 ? xmin + (xmax - xmin) * static_cast<float>(nodeIndex) / static_cast<float>(n - 1) : xmin;
  return SbVec3f(x, 0.0f, 0.0f);
}
