// A value legend of values distributed non-linearly, in the toolkit's style
// 2 (see PoValueLegend.h). The constructors are journaled with their
// arguments.
#pragma once

#include <Tavrel/PoValueLegend.h>

class PoNonLinearValueLegend2 : public PoValueLegend {
  PO_GRAPH_KIT_HEADER(PoNonLinearValueLegend2)

 public:
  PoNonLinearValueLegend2();
  PoNonLinearValueLegend2(const SbVec2f& corner1, const SbVec2f& corner2);

 protected:
  ~PoNonLinearValueLegend2() override;
};
