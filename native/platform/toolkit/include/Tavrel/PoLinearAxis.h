// A linear axis.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(start, end, type, gradStart, gradEnd, step): the values run from
//    gradStart at the start of the axis to gradEnd at its end; when both
//    are equal (0 and 0, say) the values are the coordinates along the axis
//    (PoCartesianAxis.h). The default constructor makes the axis from
//    (0, 0, 0) to 1 along x, type XY, values 0 to 1, automatic step.
//  - Graduations: every multiple of the step between the two end values
//    (inclusive, within a millionth of the step), in the order the axis
//    runs. A step of 0 or less is automatic: the smallest of 1, 2 and 5
//    times a power of ten that is at least a tenth of the span (1 for an
//    empty span). getStep() gives the step in use, built or not.
//  - Labels with the number format when one is set (PoAxis.h); the format is
//    kept by address and setting it is a change of the node.
//  - getMultFactor: MULTFACTOREND and a factor of 1 (values are written
//    whole). Four sub-ticks between two graduations.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoCartesianAxis.h>

class PoLinearAxis : public PoCartesianAxis {
  PO_GRAPH_KIT_HEADER(PoLinearAxis)

 public:
  enum GradFit : int { GRADFIT = 0, GRADUNFIT = 1 };
  enum MultFactorPosition : int { MULTFACTORSTART = 0, MULTFACTOREND = 1, MULTFACTOREXTR = 2, MULTFACTORGRAD = 3 };

  PoLinearAxis();
  PoLinearAxis(const SbVec3f& start, float end, Type type, float gradStart, float gradEnd, float step) {
    init(start, end, type, gradStart, gradEnd, step);
  }

  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;
  float getStep() const;
  void getMultFactor(MultFactorPosition& position, float& factor) const;

 protected:
  ~PoLinearAxis() override;
  void init(const SbVec3f& start, float end, Type type, float gradStart, float gradEnd, float step);
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 4; }

 private:
  float gradStart = 0.0f;
  float gradEnd = 0.0f;
  float step = 0.0f;
  PbNumericDisplayFormat* format = nullptr;
};
