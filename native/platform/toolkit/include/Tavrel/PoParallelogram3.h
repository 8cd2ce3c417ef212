// A 3D parallelogram given by three of its corners.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The three points are consecutive corners a, b, c; the fourth is
//    a + c - b.
//  - The leading int of init is 1 when the default constructor calls it, 0
//    otherwise; it changes nothing.
//  - The default parallelogram is the unit square (0, 0, 0), (1, 0, 0),
//    (1, 1, 0).
//  - Its build makes the outline a, b, c, d, a, mapped through the matrix
//    of the domain when the node has one.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoParallelogram3 : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoParallelogram3)

 public:
  PoParallelogram3() { init(1, SbVec3f(0.0f, 0.0f, 0.0f), SbVec3f(1.0f, 0.0f, 0.0f), SbVec3f(1.0f, 1.0f, 0.0f)); }
  PoParallelogram3(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c) { init(0, a, b, c); }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const SbVec3f* getCorners() const { return corners; }
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  ~PoParallelogram3() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;

 private:
  void init(int isDefault, const SbVec3f& a, const SbVec3f& b, const SbVec3f& c);

  SbVec3f corners[4];
  std::vector<SbVec3f> outline;
};
