// A value legend of values distributed non-linearly, in the toolkit's style
// 3 (see PoValueLegend.h). The constructors are journaled with their
// arguments.
#pragma once

#include <Tavrel/PoValueLegend.h>

class PoNonLinearValueLegend3 : public PoValueLegend {
  PO_GRAPH_KIT_HEADER(PoNonLinearValueLegend3)

 public:
  PoNonLinearValueLegend3();
  PoNonLinearValueLegend3(const SbVec2f& corner1, const SbVec2f& corner2);

 protected:
  ~PoNonLinearValueLegend3() override;
};
