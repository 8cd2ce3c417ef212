// The current profile of a traversal: a profile node (PoProfile) kept by
// address, null by default. See PoElementSubClass.h.
//
// Rules of this toolkit for the profile's points (until the profile nodes
// give their own): with a profile set, getProfile(state, value, count) gives
// the four corners of the square of half-side |value| about the origin,
// counter-clockwise from (-|value|, -|value|), and sets count to 4; without
// one it gives null and sets count to 0. The points stay valid until the next
// getProfile on the same element or the end of the traversal. getBBox gives
// the box (-1, -1)..(1, 1) with a profile, the empty box without.
#pragma once

#include <Corvel/SbBox.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoElementSubClass.h>

#include <vector>

class PoProfile;

class PoProfileElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoProfileElement, PoProfile)
 public:
  static const SbVec2f* getProfile(SoState* state, float value, int& count);
  static SbBox2f getBBox(SoState* state);

 private:
  mutable std::vector<SbVec2f> points;
};
