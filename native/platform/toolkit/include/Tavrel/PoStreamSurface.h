// Stream surfaces of a 3D mesh's vector data.
#pragma once

#include <Tavrel/PoBaseStreamLine.h>

class PoStreamSurface : public PoBaseStreamLine {
  SO_KIT_HEADER(PoStreamSurface)

 public:
  PoStreamSurface();

 protected:
  ~PoStreamSurface() override;
};
