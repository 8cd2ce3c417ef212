// A rectilinear grid: x, y and z have numX, numY and numZ values; node
// (i, j, k) is (x[i], y[j], z[k]). It keeps its arrays: getCoordinates gives
// them with those counts; setCoordinates replaces each non-null one. Its
// cells are voxels.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid3D.h>

class PbParalCartesianGrid3D : public PbGrid3D {
 public:
  explicit PbParalCartesianGrid3D(int isDataDuplicated);
  PbParalCartesianGrid3D(const PbParalCartesianGrid3D& other);
  PbParalCartesianGrid3D& operator=(const PbParalCartesianGrid3D& other) = default;
  PbParalCartesianGrid3D(int numX, int numY, int numZ, const float* x, const float* y, const float* z,
                         int isDataDuplicated);
  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec3f nodeXYZ(int i, int j, int k) const override;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;

 private:
  void assign(int numX, int numY, int numZ, const float* x, const float* y, const float* z);
  std::vector<float> xs, ys, zs;
};
