// A rectilinear grid: x has numX abscissas and y numY ordinates; node (i, j)
// is (x[i], y[j]). It keeps its arrays: getCoordinates gives x (numX), y (numY)
// and z (numX * numY, null without elevations); setCoordinates replaces each
// non-null array with as many values. Its cells are pixels.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid2D.h>

class PbParalCartesianGrid2D : public PbGrid2D {
 public:
  explicit PbParalCartesianGrid2D(int isDataDuplicated);
  PbParalCartesianGrid2D(const PbParalCartesianGrid2D& other);
  PbParalCartesianGrid2D& operator=(const PbParalCartesianGrid2D& other) = default;
  PbParalCartesianGrid2D(int numX, int numY, const float* x, const float* y, int isDataDuplicated);
  PbParalCartesianGrid2D(int numX, int numY, const float* x, const float* y, const float* z, int isDataDuplicated);
  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  void setGeometry(int numX, int numY, const float* x, const float* y) override;
  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec2f nodeXY(int i, int j) const override;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;

 private:
  void assign(int numX, int numY, const float* x, const float* y, const float* z);
  std::vector<float> xs;
  std::vector<float> ys;
};
