// An RGB colour: three floats (red, green, blue), laid out like SbVec3f.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>

class SbColor : public SbVec3f {
 public:
  SbColor() = default;
  SbColor(float r, float g, float b) : SbVec3f(r, g, b) {}
  SbColor(const SbVec3f& v) : SbVec3f(v) {}  // NOLINT: implicit like the toolkit's
  TAVREL_STANDIN_ONLY float getRed() const { return vec[0]; }
  TAVREL_STANDIN_ONLY float getGreen() const { return vec[1]; }
  TAVREL_STANDIN_ONLY float getBlue() const { return vec[2]; }
};

static_assert(sizeof(SbColor) == 3 * sizeof(float), "SbColor is three floats");
