// Particles along stream lines drawn as tadpoles.
#pragma once

#include <Tavrel/PoStreamParticleMotion.h>

class PoStreamTadpoleMotion : public PoStreamParticleMotion {
  SO_KIT_HEADER(PoStreamTadpoleMotion)

 public:
  PoStreamTadpoleMotion();

 protected:
  ~PoStreamTadpoleMotion() override;
};
