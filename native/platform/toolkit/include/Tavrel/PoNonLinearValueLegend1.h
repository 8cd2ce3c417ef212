// A value legend of values distributed non-linearly, in the toolkit's style
// 1 (see PoValueLegend.h). The constructors are journaled with their
// arguments.
#pragma once

#include <Tavrel/PoValueLegend.h>

class PoNonLinearValueLegend1 : public PoValueLegend {
  PO_GRAPH_KIT_HEADER(PoNonLinearValueLegend1)

 public:
  PoNonLinearValueLegend1();
  PoNonLinearValueLegend1(const SbVec2f& corner1, const SbVec2f& corner2);

 protected:
  ~PoNonLinearValueLegend1() override;
};
