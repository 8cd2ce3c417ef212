// A curvilinear grid: x, y and z are given per node (numX * numY * numZ each).
// It keeps its arrays: getCoordinates gives them; setCoordinates replaces each
// non-null one. Its cells are hexahedra.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid3D.h>

class PbCartesianGrid3D : public PbGrid3D {
 public:
  explicit PbCartesianGrid3D(int isDataDuplicated);
  PbCartesianGrid3D(const PbCartesianGrid3D& other);
  PbCartesianGrid3D& operator=(const PbCartesianGrid3D& other) = default;
  PbCartesianGrid3D(int numX, int numY, int numZ, const float* x, const float* y, const float* z,
                    int isDataDuplicated);
  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec3f nodeXYZ(int i, int j, int k) const override;

 private:
  void assign(int numX, int numY, int numZ, const float* x, const float* y, const float* z);
  std::vector<float> xs, ys, zs;
};
