// A 2D group of four axes: x axes below and above, y axes left and right, from a start corner to an
// end corner.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(start, end, xType, yType, xTitle, yTitle) keeps the corners, the
//    types and the titles (a null title as ""). The default constructor
//    makes the group from (0, 0) to (1, 1), both axes LINEAR, no titles.
//  - Its build makes nothing but journals itself; the settings are read
//    back through the accessors below.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBaseAxis.h>

class PoGroup4Axis : public PoBaseAxis {
  PO_GRAPH_KIT_HEADER(PoGroup4Axis)

 public:
  enum AxisType : int { LINEAR = 0, LOGARITHMIC = 1 };

  PoGroup4Axis();
  PoGroup4Axis(const SbVec2f& start, const SbVec2f& end, AxisType xType, AxisType yType, const char* xTitle,
               const char* yTitle) {
    init(start, end, xType, yType, xTitle, yTitle);
  }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  SbVec2f start, end;
  TAVREL_STANDIN_ONLY AxisType types[2] = {LINEAR, LINEAR};
  TAVREL_STANDIN_ONLY SbString titles[2];

 protected:
  ~PoGroup4Axis() override;
  void init(const SbVec2f& start, const SbVec2f& end, AxisType xType, AxisType yType, const char* xTitle,
            const char* yTitle);
  TAVREL_STANDIN_ONLY void build() override;
};
