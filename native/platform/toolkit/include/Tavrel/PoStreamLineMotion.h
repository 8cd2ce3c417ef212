// Particles along stream lines drawn as short line pulses.
#pragma once

#include <Tavrel/PoStreamParticleMotion.h>

class PoStreamLineMotion : public PoStreamParticleMotion {
  SO_KIT_HEADER(PoStreamLineMotion)

 public:
  PoStreamLineMotion();

 protected:
  ~PoStreamLineMotion() override;
};
