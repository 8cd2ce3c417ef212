// A one-dimensional mesh of n nodes at the given abscissas. It keeps its x
// array: getCoordinates gives it (n values) and null for y and z;
// setCoordinates replaces it when x is not null.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh1D.h>

class PbIrregularMesh1D : public PbMesh1D {
 public:
  PbIrregularMesh1D();
  PbIrregularMesh1D(const PbIrregularMesh1D& other);
  PbIrregularMesh1D& operator=(const PbIrregularMesh1D& other) = default;
  PbIrregularMesh1D(int numNodes, const float* x);
  void setGeometry(int numNodes, const float* x);
  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;

 protected:
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;

 private:
  void assign(int numNodes, const float* x);
  std::vector<float> xs;
};
