// Base of the stream representations of a 3D mesh's vector data; drawn on its own it shows the start points.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoBaseStreamLine : public PoMesh3D {
  SO_KIT_HEADER(PoBaseStreamLine)

 public:
  enum IntegrationDirections : int { FORWARD = 0, BACKWARD = 1 };

  PoBaseStreamLine();

 protected:
  ~PoBaseStreamLine() override;
};
