// A cell filter (PoCellFilter) that keeps the cells whose value lies in an
// interval.
//
// Fields, with their defaults: "min" 0, "max" 1, "in" TRUE. With "in" TRUE a
// cell is accepted when min <= value <= max (bounds included); with "in"
// FALSE when it is not. A NaN value is never in the interval (so only
// "in" FALSE accepts it). The fields are
// read at each question, so a change shows at the next traversal.
//
// acceptCell records nothing (the representations ask it about every cell,
// see PoMesh.h).
#pragma once

#include <Tavrel/PoCellFilter.h>

class SoField;

class PoIntervalCellFilter : public PoCellFilter {
  SO_NODE_HEADER(PoIntervalCellFilter)

 public:
  PoIntervalCellFilter();
  SbBool acceptCell(int index, float value) const override;

 protected:
  ~PoIntervalCellFilter() override;

 private:
  SoField* minField;
  SoField* maxField;
  SoField* inField;
};
