// A 2D parallelogram given by three of its corners.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The three points are consecutive corners a, b, c; the fourth is
//    a + c - b. Collinear points give a flat parallelogram, drawn as is.
//  - The default parallelogram is the unit square: (0, 0), (1, 0), (1, 1).
//  - Its build makes the outline a, b, c, d, a at z 0, mapped through the
//    matrix of the domain when the node has one.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoParallelogram : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoParallelogram)

 public:
  PoParallelogram() { init(SbVec2f(0.0f, 0.0f), SbVec2f(1.0f, 0.0f), SbVec2f(1.0f, 1.0f)); }
  PoParallelogram(const SbVec2f& a, const SbVec2f& b, const SbVec2f& c) { init(a, b, c); }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  // The four corners a, b, c, d.
  TAVREL_STANDIN_ONLY const SbVec2f* getCorners() const { return corners; }
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  ~PoParallelogram() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;

 private:
  void init(const SbVec2f& a, const SbVec2f& b, const SbVec2f& c);

  SbVec2f corners[4];
  std::vector<SbVec3f> outline;
};
