// A generalised axis: graduations given as strings.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(flag, start, end, type, grads, count): count labels (none for a
//    count below 1; a null label counts as ""), placed evenly from the
//    start of the axis (first label) to its end (last label); a single
//    label sits at the start. The values are the coordinates along the
//    axis (PoCartesianAxis.h). The leading flag is 1 for the default
//    constructor (from (0, 0, 0) to 1 along x, type XY, no labels), 0
//    otherwise.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoCartesianAxis.h>

#include <vector>

class PoGenAxis : public PoCartesianAxis {
  PO_GRAPH_KIT_HEADER(PoGenAxis)

 public:
  PoGenAxis();
  PoGenAxis(const SbVec3f& start, float end, Type type, const char** grads, short count) {
    init(0, start, end, type, grads, count);
  }

 protected:
  ~PoGenAxis() override;
  void init(int flag, const SbVec3f& start, float end, Type type, const char** grads, short count);
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;

 private:
  std::vector<SbString> labels;
};
