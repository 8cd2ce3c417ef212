// The representation of a pie chart's slices on their own: a unit pie
// around the origin whose slices a program sets through this toolkit (none
// at first); translation and picking as for PoPieChart.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default representation has no slices, so picking finds none and
//    every translation is ignored (getSliceToTranslate gives 0).
//  - setSliceToTranslate changes the node (see PoBase); this class builds
//    nothing, so it stays modified.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPieChart.h>

class PoPieChartRep : public PoChart {
  PO_GRAPH_KIT_HEADER(PoPieChartRep)

 public:
  PoPieChartRep();

  void setSliceToTranslate(int slice, float distance);
  float getSliceToTranslate(int slice) const;
  int getPickedSliceNumber(const SoPath* path, int& slice) const;

  // --- Used inside this toolkit (not journaled) ---
  // Slice values (colours and names do not matter here).
  void setValues(int count, const float* values);
  TAVREL_STANDIN_ONLY const std::vector<PoPieChart::Slice>& getSlices() const { return slices; }

 protected:
  ~PoPieChartRep() override;

 private:
  std::vector<PoPieChart::Slice> slices;
};
