// A 2D arrow: a polyline with a pattern at each end.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(isDefault, count, points, startPattern, endPattern, width,
//    length): the arrow keeps the count as given and copies that many
//    points; with a null point pointer it keeps the count and no points.
//    isDefault is 1 when the default constructor calls it, 0 otherwise; it
//    changes nothing. width and length are the size of the end patterns,
//    kept as given.
//  - The default arrow has no points, no start pattern, a direct triangle
//    at its end, and patterns of size 0.1 by 0.1.
//  - Its build makes the polyline of the points (at z 0), mapped through
//    the matrix of the domain when the node has one.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoArrow : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoArrow)

 public:
  enum PatternType : int { NOPATTERN = 0, DIRECTTRIANGLE = 1, INDIRECTTRIANGLE = 2, RECTANGLE = 3 };

  PoArrow() { init(1, 0, nullptr, NOPATTERN, DIRECTTRIANGLE, 0.1f, 0.1f); }
  PoArrow(int numPoints, const SbVec2f* points, PatternType startPattern, PatternType endPattern, float width,
          float length) {
    init(0, numPoints, points, startPattern, endPattern, width, length);
  }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY int getNumPoints() const { return numPoints; }
  TAVREL_STANDIN_ONLY const std::vector<SbVec2f>& getPoints() const { return points; }
  TAVREL_STANDIN_ONLY PatternType getStartPattern() const { return startPattern; }
  TAVREL_STANDIN_ONLY PatternType getEndPattern() const { return endPattern; }
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  ~PoArrow() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;

 private:
  void init(int isDefault, int numPoints, const SbVec2f* points, PatternType startPattern, PatternType endPattern,
            float width, float length);

  int numPoints = 0;
  std::vector<SbVec2f> points;
  PatternType startPattern = NOPATTERN;
  PatternType endPattern = NOPATTERN;
  float width = 0.0f;
  float length = 0.0f;
  std::vector<SbVec3f> outline;
};
