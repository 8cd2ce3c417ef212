// An angular axis: a circle graduated in degrees.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(centreX, centreY, radius, firstAngle, angleStep): graduations at
//    firstAngle + k x step degrees for k = 0, 1, ... while k x step is below
//    360 (one turn); a step of 0 or less, or above 360, is 30.
//    getAngleStep() gives the step in use. The values are the angles; the
//    labels those angles brought into [0, 360) and written with "%g". The
//    default constructor makes the circle of radius 1 around (0, 0) from 0
//    degrees every 30.
//  - The values at the start and end of the axis are the first angle and
//    the first angle plus 360. Two sub-ticks.
//  - Drawing (PoAxis.h): the circle at z 0 (a closed line of 64 segments),
//    each graduation at its angle (degrees, counter-clockwise from +x) with
//    its tick and label outwards; the axis's length is the radius.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoAxis.h>

class PoAngularAxis : public PoAxis {
  PO_GRAPH_KIT_HEADER(PoAngularAxis)

 public:
  enum GradFit : int { GRADFIT = 0, GRADUNFIT = 1 };

  PoAngularAxis();
  PoAngularAxis(float centreX, float centreY, float radius, float firstAngle, float angleStep) {
    init(centreX, centreY, radius, firstAngle, angleStep);
  }

  float getAngleStep() const;

 protected:
  ~PoAngularAxis() override;
  void init(float centreX, float centreY, float radius, float firstAngle, float angleStep);
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 2; }
  TAVREL_STANDIN_ONLY std::vector<SbVec3f> axisLine() const override;
  TAVREL_STANDIN_ONLY SbVec3f pointOf(double value) const override;
  TAVREL_STANDIN_ONLY SbVec3f gradSide(double value) const override;
  TAVREL_STANDIN_ONLY double axisLength() const override;

 private:
  float centreX = 0.0f, centreY = 0.0f, radius = 1.0f, firstAngle = 0.0f, angleStep = 30.0f;
};
