// A profile that is a regular polygon on a circle around the origin.
//
// Fields, with their defaults: "radius" 1, "numPoints" 16. Point i is at the
// angle 2 * pi * i / numPoints from the x axis, counterclockwise; a count
// below 3 counts as 3.
#pragma once

#include <Tavrel/PoProfile.h>

class PoCircularProfile : public PoProfile {
  PO_PROFILE_HEADER(PoCircularProfile)

 private:
  SoField* radiusField;
  SoField* numPointsField;
};
