// The sides of a 2D mesh raised by its values, down to a threshold.
#pragma once

#include <Tavrel/PoMesh2D.h>

class PoMeshSides : public PoMesh2D {
  SO_KIT_HEADER(PoMeshSides)

 public:
  enum ThresholdTypes : int { THRESHOLDZMIN = 0, THRESHOLDZMAX = 1, THRESHOLDVALUE = 2 };

  PoMeshSides();

 protected:
  ~PoMeshSides() override;
};
