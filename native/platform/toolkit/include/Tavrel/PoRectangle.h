// A rectangle given by two opposite corners, in the coordinates of its
// domain.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A new rectangle (the default constructor, which the toolkit also uses
//    to make one from its type name) has the corners (0, 0) and (1, 1).
//  - PoRectangle(corner1, corner2) sets the corners through init() after
//    the PoQuorvex base; any two opposite corners will do (equal ones give
//    a flat outline, drawn as is).
//  - Its build makes the outline: the corners p1, (p2.x, p1.y), p2,
//    (p1.x, p2.y) and p1 again, at z 0, each mapped through the matrix of
//    the domain (getMatrix) when the node has one.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoRectangle : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoRectangle)

 public:
  PoRectangle();
  PoRectangle(const SbVec2f& corner1, const SbVec2f& corner2) { init(corner1, corner2); }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const SbVec2f& getCorner1() const { return corner1; }
  TAVREL_STANDIN_ONLY const SbVec2f& getCorner2() const { return corner2; }
  // The outline made by the last build (empty before the first).
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  ~PoRectangle() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;

 private:
  void init(const SbVec2f& corner1, const SbVec2f& corner2);

  SbVec2f corner1{0.0f, 0.0f};
  SbVec2f corner2{1.0f, 1.0f};
  std::vector<SbVec3f> outline;
};
