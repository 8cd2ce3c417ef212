// A profile that is a polygon on an ellipse around the origin, its axes along
// x and y.
//
// Fields, with their defaults: "radiusX" 1, "radiusY" 0.5, "numPoints" 16.
// Point i is (radiusX cos a, radiusY sin a) with a = 2 * pi * i / numPoints;
// a count below 3 counts as 3.
#pragma once

#include <Tavrel/PoProfile.h>

class PoEllipticProfile : public PoProfile {
  PO_PROFILE_HEADER(PoEllipticProfile)

 private:
  SoField* radiusXField;
  SoField* radiusYField;
  SoField* numPointsField;
};
