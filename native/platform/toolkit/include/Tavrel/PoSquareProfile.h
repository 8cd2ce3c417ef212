// A profile that is a square centred on the origin, its sides along x and y.
//
// Field, with its default: "size" 1 (the side's length). The points are the
// four corners counterclockwise from (-size/2, -size/2).
#pragma once

#include <Tavrel/PoProfile.h>

class PoSquareProfile : public PoProfile {
  PO_PROFILE_HEADER(PoSquareProfile)

 private:
  SoField* sizeField;
};
