// A pie chart in the plane z = 0 (see PoPieChart).
//
// Behaviour of this toolkit (what a caller may rely on):
//  - PoPieChart2D(center, radius, numSlices, names, values, numColors,
//    colors): the slices as PoPieChart says, around (center, 0).
//  - The default chart has the centre (0, 0), the radius 1 and no slices.
#pragma once

#include <Tavrel/PoPieChart.h>

class PoPieChart2D : public PoPieChart {
  PO_GRAPH_KIT_HEADER(PoPieChart2D)

 public:
  PoPieChart2D();
  PoPieChart2D(const SbVec2f& center, float radius, short numSlices, const char** names, const float* values,
               int numColors, const SbColor* colors);

 protected:
  ~PoPieChart2D() override;
};
