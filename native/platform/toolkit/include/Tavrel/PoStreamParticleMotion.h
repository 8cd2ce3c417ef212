// Base of the animated particles along stream lines. Abstract.
#pragma once

#include <Tavrel/PoBaseStreamLine.h>

class PoStreamParticleMotion : public PoBaseStreamLine {
  SO_KIT_HEADER(PoStreamParticleMotion)

 protected:
  PoStreamParticleMotion();
  ~PoStreamParticleMotion() override;
};
