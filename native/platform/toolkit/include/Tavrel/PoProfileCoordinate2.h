// A profile given by its points.
//
// Field, with its default: "point" the points, two numbers each (none: the
// profile has no point; an odd number at the end is ignored).
#pragma once

#include <Tavrel/PoProfile.h>

class PoProfileCoordinate2 : public PoProfile {
  PO_PROFILE_HEADER(PoProfileCoordinate2)

 private:
  SoField* pointField;
};
