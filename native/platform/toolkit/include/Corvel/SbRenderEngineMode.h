// The rendering mode a node asks for. A default-constructed mode is 0.
#pragma once

#include <Corvel/StandIn.h>

class SbRenderEngineMode {
 public:
  enum RenderMode {
    UNKNOWN_RENDERING = 0,
    COMPATIBILITY_RENDERING = 1,
    CORE_RENDERING = 2,
    ANY_RENDERING = 3
  };

  SbRenderEngineMode() = default;
  explicit SbRenderEngineMode(RenderMode m) : mode(m) {}
  TAVREL_ASSUMED void setRenderMode(RenderMode m) { mode = m; }
  TAVREL_STANDIN_ONLY RenderMode getRenderMode() const { return mode; }

 private:
  RenderMode mode = UNKNOWN_RENDERING;
};
