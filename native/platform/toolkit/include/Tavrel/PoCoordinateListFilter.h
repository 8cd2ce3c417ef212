// A 1D-mesh filter that keeps the points whose x (or y) coordinate is one of
// a list.
//
// Fields, with their defaults: "axis" X (which coordinate is compared),
// "coordinates" the list (none: no point is kept). A point is kept when its
// coordinate equals one of the list, float for float.
#pragma once

#include <Tavrel/PoMesh1DFilter.h>

class PoCoordinateListFilter : public PoMesh1DFilter {
  PO_MESH1D_FILTER_HEADER(PoCoordinateListFilter)

 public:
  enum AxisType : int { X = 0, Y = 1 };

 private:
  SoField* axisField;
  SoField* coordinatesField;
};
