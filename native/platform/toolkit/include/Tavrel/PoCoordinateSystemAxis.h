// A coordinate-system triad: three axes from an origin to an end point.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(flag, origin, end, xTitle, yTitle, zTitle, gradDistance,
//    arrowLength) keeps the origin, the end point, the titles (a null title
//    as "") and the two floats. The leading flag is 1 for the default
//    constructor (from (0, 0, 0) to (1, 1, 1), titles "X", "Y", "Z", 0.1
//    and 0.05), 0 otherwise.
//  - Its build makes nothing but journals itself.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

class PoCoordinateSystemAxis : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCoordinateSystemAxis)

 public:
  PoCoordinateSystemAxis();
  PoCoordinateSystemAxis(const SbVec3f& origin, const SbVec3f& end, const char* xTitle, const char* yTitle,
                         const char* zTitle, float gradDistance, float arrowLength) {
    init(0, origin, end, xTitle, yTitle, zTitle, gradDistance, arrowLength);
  }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY SbVec3f origin, end;
  TAVREL_STANDIN_ONLY SbString titles[3];
  TAVREL_STANDIN_ONLY float gradDistance = 0.1f, arrowLength = 0.05f;

 protected:
  ~PoCoordinateSystemAxis() override;
  void init(int flag, const SbVec3f& origin, const SbVec3f& end, const char* xTitle, const char* yTitle,
            const char* zTitle, float gradDistance, float arrowLength);
  TAVREL_STANDIN_ONLY void build() override;
};
