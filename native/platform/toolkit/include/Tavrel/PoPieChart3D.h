// A pie chart with a height (see PoPieChart): its slices lie in the plane
// z = center z and the height is kept as given (this toolkit draws the top
// face only).
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default chart has the centre (0, 0, 0), the radius 1, the height
//    0.1 and no slices.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPieChart.h>

class PoPieChart3D : public PoPieChart {
  PO_GRAPH_KIT_HEADER(PoPieChart3D)

 public:
  PoPieChart3D();
  PoPieChart3D(const SbVec3f& center, float radius, float height, short numSlices, const char** names,
               const float* values, int numColors, const SbColor* colors);

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY float getHeight() const { return height; }

 protected:
  ~PoPieChart3D() override;

 private:
  float height = 0.1f;
};
