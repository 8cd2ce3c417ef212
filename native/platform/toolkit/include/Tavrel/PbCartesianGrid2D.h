// A curvilinear grid: x and y are given per node (numX * numY each). It keeps
// its arrays: getCoordinates gives x, y (numX * numY each) and z (null without
// elevations); setCoordinates replaces each non-null array (numX * numY values).
// Its cells are quadrangles.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid2D.h>

class PbCartesianGrid2D : public PbGrid2D {
 public:
  explicit PbCartesianGrid2D(int isDataDuplicated);
  PbCartesianGrid2D(const PbCartesianGrid2D& other);
  PbCartesianGrid2D& operator=(const PbCartesianGrid2D& other) = default;
  PbCartesianGrid2D(int numX, int numY, const float* x, const float* y, int isDataDuplicated);
  PbCartesianGrid2D(int numX, int numY, const float* x, const float* y, const float* z, int isDataDuplicated);
  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  void setGeometry(int numX, int numY, const float* x, const float* y) override;
  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec2f nodeXY(int i, int j) const override;

 private:
  void assign(int numX, int numY, const float* x, const float* y, const float* z);
  std::vector<float> xs;
  std::vector<float> ys;
};
