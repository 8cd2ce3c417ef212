// A polar grid: x has numX radii and y numY angles in degrees; node (i, j) is
// (x[i] cos y[j], x[i] sin y[j]). It keeps no coordinate arrays (radii and
// angles are not coordinates). Its cells are quadrangles.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid2D.h>

class PbPolarGrid2D : public PbGrid2D {
 public:
  explicit PbPolarGrid2D(int isDataDuplicated);
  PbPolarGrid2D(const PbPolarGrid2D& other);
  PbPolarGrid2D& operator=(const PbPolarGrid2D& other) = default;
  PbPolarGrid2D(int numX, int numY, const float* radii, const float* angles, int isDataDuplicated);
  PbPolarGrid2D(int numX, int numY, const float* radii, const float* angles, const float* z, int isDataDuplicated);
  void setGeometry(int numX, int numY, const float* x, const float* y) override;
  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec2f nodeXY(int i, int j) const override;

 private:
  void assign(int numX, int numY, const float* radii, const float* angles, const float* z);
  std::vector<float> radii;
  std::vector<float> angles;
};
