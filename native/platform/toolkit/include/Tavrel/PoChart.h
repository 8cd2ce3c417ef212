// Base of the charts, with the ways a chart binds its colours. Abstract; it
// adds nothing to PoBase but its type, catalog and enumeration.
#pragma once

#include <Tavrel/PoBase.h>

class PoChart : public PoBase {
  PO_GRAPH_KIT_HEADER(PoChart)

 public:
  enum ColorBinding : int { INHERITED = 0, PERVERTEX = 1, PERPART = 2 };

 protected:
  PoChart();
  ~PoChart() override;
};
