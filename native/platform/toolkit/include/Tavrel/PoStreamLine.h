// Stream lines of a 3D mesh's vector data.
#pragma once

#include <Tavrel/PoBaseStreamLine.h>

class PoStreamLine : public PoBaseStreamLine {
  SO_KIT_HEADER(PoStreamLine)

 public:
  PoStreamLine();

 protected:
  ~PoStreamLine() override;
};
