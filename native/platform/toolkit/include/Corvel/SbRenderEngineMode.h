// The rendering mode a node asks for. A default-constructed mode is 0.
#pragma once

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
  void setRenderMode(RenderMode m) { mode = m; }
  RenderMode getRenderMode() const { return mode; }

 private:
  RenderMode mode = UNKNOWN_RENDERING;
};
