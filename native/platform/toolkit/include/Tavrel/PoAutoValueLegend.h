// A value legend that picks its values itself. Abstract here: this toolkit
// offers its type and catalog only (see PoValueLegend.h).
#pragma once

#include <Tavrel/PoValueLegend.h>

class PoAutoValueLegend : public PoValueLegend {
  PO_GRAPH_KIT_HEADER(PoAutoValueLegend)

 protected:
  PoAutoValueLegend();
  ~PoAutoValueLegend() override;
};
