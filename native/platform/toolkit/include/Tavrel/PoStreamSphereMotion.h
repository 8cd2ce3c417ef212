// Particles along stream lines drawn as spheres.
#pragma once

#include <Tavrel/PoStreamParticleMotion.h>

class PoStreamSphereMotion : public PoStreamParticleMotion {
  SO_KIT_HEADER(PoStreamSphereMotion)

 public:
  PoStreamSphereMotion();

 protected:
  ~PoStreamSphereMotion() override;
};
