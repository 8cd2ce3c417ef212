// A value legend of values distributed linearly (see PoValueLegend.h).
// The constructors are journaled with their arguments.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoValueLegend.h>

class PoLinearValueLegend : public PoValueLegend {
  PO_GRAPH_KIT_HEADER(PoLinearValueLegend)

 public:
  enum ValueDistribution : int { ALLVALUES = 0, LINEARVALUES = 1, MINMAXVALUES = 2 };

  PoLinearValueLegend();
  PoLinearValueLegend(const SbVec2f& corner1, const SbVec2f& corner2, ValueDistribution distribution);

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY ValueDistribution getDistribution() const { return distribution; }

 protected:
  ~PoLinearValueLegend() override;

 private:
  ValueDistribution distribution = LINEARVALUES;
};
