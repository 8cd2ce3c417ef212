// A regular grid: numX x numY nodes evenly spread over [xmin, xmax] x [ymin,
// ymax]. It keeps no coordinate arrays. PbGrid2D::setGeometry with arrays
// takes the extent from their first and last elements (x[0], x[numX-1],
// y[0], y[numY-1]). Its cells are pixels.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbGrid2D.h>

class PbRegularCartesianGrid2D : public PbGrid2D {
 public:
  explicit PbRegularCartesianGrid2D(int isDataDuplicated);
  PbRegularCartesianGrid2D(const PbRegularCartesianGrid2D& other);
  PbRegularCartesianGrid2D& operator=(const PbRegularCartesianGrid2D& other) = default;
  PbRegularCartesianGrid2D(int numX, int numY, float xmin, float ymin, float xmax, float ymax, int isDataDuplicated);
  PbRegularCartesianGrid2D(int numX, int numY, float xmin, float ymin, float xmax, float ymax, const float* z,
                           int isDataDuplicated);
  // The extent of the other grid (and its data-duplication flag) with new counts.
  PbRegularCartesianGrid2D(int numX, int numY, const PbRegularCartesianGrid2D& grid);
  void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax);
  void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax, const float* z);
  void setGeometry(int numX, int numY, const float* x, const float* y) override;
  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z) override;

 protected:
  TAVREL_STANDIN_ONLY SbVec2f nodeXY(int i, int j) const override;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;

 private:
  void assign(int numX, int numY, float xmin, float ymin, float xmax, float ymax, const float* z);
  float xmin = 0, ymin = 0, xmax = 0, ymax = 0;
};
