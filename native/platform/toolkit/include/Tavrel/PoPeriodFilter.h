// A 1D-mesh filter that keeps one point per period of x (or y).
//
// Fields, with their defaults: "axis" X, "period" 1. The first point is
// kept; then, in the points' order, each point whose coordinate is at least
// one period beyond (in absolute value) the last point kept. A period that is
// not a positive finite number keeps every point.
#pragma once

#include <Tavrel/PoMesh1DFilter.h>

class PoPeriodFilter : public PoMesh1DFilter {
  PO_MESH1D_FILTER_HEADER(PoPeriodFilter)

 public:
  enum AxisType : int { X = 0, Y = 1 };

 private:
  SoField* axisField;
  SoField* periodField;
};
