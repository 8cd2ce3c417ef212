// Particles along stream lines drawn as points.
#pragma once

#include <Tavrel/PoStreamParticleMotion.h>

class PoStreamPointMotion : public PoStreamParticleMotion {
  SO_KIT_HEADER(PoStreamPointMotion)

 public:
  PoStreamPointMotion();

 protected:
  ~PoStreamPointMotion() override;
};
