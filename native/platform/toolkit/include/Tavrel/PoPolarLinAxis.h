// A linear polar axis.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - PoPolarLinAxis(x0, y0, x1, y1, step): the axis of PoPolarAxis.h, its
//    values the distances from the centre (0 to the length), graduated as
//    a linear axis (PoLinearAxis.h) with that step (0 or less: automatic).
//    The default constructor makes the axis from (0, 0) to (1, 0) with an
//    automatic step.
//  - The number format as for PoLinearAxis; four sub-ticks.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPolarAxis.h>

class PoPolarLinAxis : public PoPolarAxis {
  PO_GRAPH_KIT_HEADER(PoPolarLinAxis)

 public:
  enum GradFit : int { GRADFIT = 0, GRADUNFIT = 1 };

  PoPolarLinAxis();
  PoPolarLinAxis(float x0, float y0, float x1, float y1, float step);

  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;
  float getStep() const;

 protected:
  ~PoPolarLinAxis() override;
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 4; }

 private:
  float step = 0.0f;
  PbNumericDisplayFormat* format = nullptr;
};
