// Base of the axes drawn along one of the three coordinate directions:
// linear, logarithmic and generalised axes. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - An axis starts at a point and runs along the direction named by the
//    first letter of its Type (XY: along x, graduations on the y side) up
//    to the coordinate end on that direction. Its coordinates along the
//    axis are start[direction] at the start and end at the end.
//  - Drawing (PoAxis.h): the line from the start to the end coordinate on
//    the axis's direction, the other coordinates the start's; a value at its
//    fraction of the way (so where the values are the coordinates along the
//    axis, each value is drawn at its coordinate); the graduations on the
//    negative side of the type's second direction (XY: below the axis,
//    towards -y; YX: left of it, towards -x; XZ and YZ: towards -z, which
//    the picture does not show). The axis's length is |end - start
//    coordinate|.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoAxis.h>

class PoCartesianAxis : public PoAxis {
  PO_GRAPH_KIT_HEADER(PoCartesianAxis)

 public:
  enum Type : int { XY = 0, XZ = 1, YX = 2, YZ = 3, ZX = 4, ZY = 5 };

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const SbVec3f& getStart() const { return start; }
  TAVREL_STANDIN_ONLY float getEnd() const { return end; }
  TAVREL_STANDIN_ONLY Type getType() const { return type; }
  // The coordinate of the start along the axis's direction.
  TAVREL_STANDIN_ONLY double startCoordinate() const;

 protected:
  PoCartesianAxis();
  ~PoCartesianAxis() override;
  TAVREL_STANDIN_ONLY std::vector<SbVec3f> axisLine() const override;
  TAVREL_STANDIN_ONLY SbVec3f pointOf(double value) const override;
  TAVREL_STANDIN_ONLY SbVec3f gradSide(double value) const override;
  TAVREL_STANDIN_ONLY double axisLength() const override;

  SbVec3f start;
  float end = 1.0f;
  Type type = XY;
};
