// A 3D group of three axes, x, y and z, from a start corner to an end corner.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(start, end, xType, yType, zType, axisName, xTitle, yTitle,
//    zTitle) keeps the corners, the types, the name of the axis given the
//    group's graduations first, and the titles (a null title as ""). The
//    default constructor makes the group from (0, 0, 0) to (1, 1, 1), all
//    LINEAR, XAXIS, no titles.
//  - Its build makes nothing but journals itself; the settings are read
//    back through the accessors below.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBaseAxis.h>

class PoGroup3Axis3 : public PoBaseAxis {
  PO_GRAPH_KIT_HEADER(PoGroup3Axis3)

 public:
  enum AxisType : int { LINEAR = 0, LOGARITHMIC = 1 };
  enum AxisName : int { XAXIS = 0, YAXIS = 1, ZAXIS = 2 };

  PoGroup3Axis3();
  PoGroup3Axis3(const SbVec3f& start, const SbVec3f& end, AxisType xType, AxisType yType, AxisType zType,
                AxisName name, const char* xTitle, const char* yTitle, const char* zTitle) {
    init(start, end, xType, yType, zType, name, xTitle, yTitle, zTitle);
  }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  SbVec3f start, end;
  TAVREL_STANDIN_ONLY AxisType types[3] = {LINEAR, LINEAR, LINEAR};
  AxisName name = XAXIS;
  TAVREL_STANDIN_ONLY SbString titles[3];

 protected:
  ~PoGroup3Axis3() override;
  void init(const SbVec3f& start, const SbVec3f& end, AxisType xType, AxisType yType, AxisType zType,
            AxisName name, const char* xTitle, const char* yTitle, const char* zTitle);
  TAVREL_STANDIN_ONLY void build() override;
};
