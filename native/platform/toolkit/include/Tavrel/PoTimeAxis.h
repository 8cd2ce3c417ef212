// A time axis between two dates.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(flag, date1, date2, position, type): the axis runs from date1 to
//    date2 (dates as PbDateFormatMapping reads them), along x at y =
//    position (type X) or along y at x = position (type Y). The leading flag
//    is 1 for the default constructor (2000-01-01 to 2000-01-02, position
//    0, type X), 0 otherwise.
//  - Graduations: each midnight between the two dates (inclusive) when they
//    are at least a day apart, each whole hour otherwise, in the order the
//    axis runs; none when a date cannot be read. Labels are the dates
//    written with the date mapping's format ("%Y-%m-%d" without a mapping);
//    values are the coordinates through the mapping (without one: days
//    since 2000-01-01). The mapping is kept by address; setting it is a
//    change of the node. Three sub-ticks.
//  - Drawing (PoAxis.h): type X runs along x at y = position from the
//    coordinate of the first date to that of the second, graduations below
//    (towards -y); type Y along y at x = position, graduations on the left
//    (towards -x). Each graduation is drawn at its coordinate; the axis's
//    length is the distance between the two dates' coordinates.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoAxis.h>

class PbDateFormatMapping;

class PoTimeAxis : public PoAxis {
  PO_GRAPH_KIT_HEADER(PoTimeAxis)

 public:
  enum Language : int { ENGLISH = 0, FRANCAIS = 1, DEUTSCH = 2, ESPANOL = 3 };
  enum GradFit : int { GRADFIT = 0, GRADUNFIT = 1 };
  enum Type : int { X = 0, Y = 1 };

  PoTimeAxis();
  PoTimeAxis(const char* date1, const char* date2, float position, Type type) {
    init(0, date1, date2, position, type);
  }

  void setDateFormatMapping(PbDateFormatMapping* mapping);
  PbDateFormatMapping* getDateFormatMapping() const;

 protected:
  ~PoTimeAxis() override;
  void init(int flag, const char* date1, const char* date2, float position, Type type);
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 3; }
  TAVREL_STANDIN_ONLY std::vector<SbVec3f> axisLine() const override;
  TAVREL_STANDIN_ONLY SbVec3f pointOf(double value) const override;
  TAVREL_STANDIN_ONLY SbVec3f gradSide(double value) const override;
  TAVREL_STANDIN_ONLY double axisLength() const override;

 private:
  double coordinate(double seconds) const;
  SbString date1, date2;
  float position = 0.0f;
  Type type = X;
  PbDateFormatMapping* mapping = nullptr;
};
