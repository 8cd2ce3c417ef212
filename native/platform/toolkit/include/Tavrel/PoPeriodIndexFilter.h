// A 1D-mesh filter that keeps every period-th point.
//
// Fields, with their defaults: "start" 0, "period" 1. It keeps the points
// start, start + period, start + 2 * period, ...; a period below 1 counts as
// 1, a start below 0 as 0.
#pragma once

#include <Tavrel/PoMesh1DFilter.h>

class PoPeriodIndexFilter : public PoMesh1DFilter {
  PO_MESH1D_FILTER_HEADER(PoPeriodIndexFilter)

 private:
  SoField* startField;
  SoField* periodField;
};
