// Base of the polar axes: an axis from a centre outwards whose values are
// distances from the centre. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The axis runs from the centre (x0, y0) to the point (x1, y1); its
//    coordinates along the axis are 0 at the centre and the distance
//    between the two points at the end.
//  - getMultFactor: MULTFACTOREND and a factor of 1.
//  - Drawing (PoAxis.h): the segment from the centre to the end point at
//    z 0, a value at its fraction of the way, the graduations on the right
//    of the direction of the axis (below an axis that runs towards +x). Its
//    length is the distance between the two points; an axis of length 0
//    puts its graduations towards -y.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoAxis.h>

class PoPolarAxis : public PoAxis {
  PO_GRAPH_KIT_HEADER(PoPolarAxis)

 public:
  enum MultFactorPosition : int { MULTFACTORSTART = 0, MULTFACTOREND = 1, MULTFACTOREXTR = 2, MULTFACTORGRAD = 3 };

  void getMultFactor(MultFactorPosition& position, float& factor) const;

  // --- Used inside this toolkit (not journaled) ---
  double length() const;

 protected:
  PoPolarAxis();
  ~PoPolarAxis() override;
  TAVREL_STANDIN_ONLY std::vector<SbVec3f> axisLine() const override;
  TAVREL_STANDIN_ONLY SbVec3f pointOf(double value) const override;
  TAVREL_STANDIN_ONLY SbVec3f gradSide(double value) const override;
  TAVREL_STANDIN_ONLY double axisLength() const override;

  TAVREL_STANDIN_ONLY float x0 = 0.0f, y0 = 0.0f, x1 = 1.0f, y1 = 0.0f;
};
