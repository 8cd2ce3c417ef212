// Base of every node kit of the extension that draws something: the mesh
// representations (PoMesh and below) derive from it. Abstract; its catalog
// holds the parts that every representation shares.
#pragma once

#include <Corvel/SoBaseKit.h>

class PoDessvane : public SoBaseKit {
  SO_KIT_HEADER(PoDessvane)

 protected:
  PoDessvane();
  ~PoDessvane() override;
};
