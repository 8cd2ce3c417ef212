// A regular grid over [xmin, xmax] x [ymin, ymax] x [zmin, zmax]. It keeps no
// coordinate arrays. PbGrid3D::setGeometry with arrays takes the extent from
// their first and last elements. Its cells are voxels.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid3D.h>

class PbRegularCartesianGrid3D : public PbGrid3D {
 public:
  explicit PbRegularCartesianGrid3D(int isDataDuplicated);
  PbRegularCartesianGrid3D(const PbRegularCartesianGrid3D& other);
  PbRegularCartesianGrid3D& operator=(const PbRegularCartesianGrid3D& other) = default;
  PbRegularCartesianGrid3D(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax,
                           float ymax, float zmax, int isDataDuplicated);
  void setGeometry(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax, float ymax,
                   float zmax);
  void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec3f nodeXYZ(int i, int j, int k) const override;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;

 private:
  void assign(int numX, int numY, int numZ, const float* lo, const float* hi);
  float lo[3] = {0, 0, 0};
  float hi[3] = {0, 0, 0};
};
