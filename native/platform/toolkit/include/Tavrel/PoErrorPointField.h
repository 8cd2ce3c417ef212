// Points with an error in x and in y each, drawn as a shape and a skeleton.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, points, xErrors, yErrors,
//    shape, skeleton): the default constructor with 1, 0, null lists,
//    RECTANGLESHAPE and CROSS1SKELETON. init copies num points and num
//    errors of each list (none for a null pointer); it does not build.
//  - Its build makes one part a point that has both errors:
//    "error <point> +-(<xError>, <yError>)".
//  - Drawing (PoDrawing.h): each error as a black cross of two segments,
//    x - xError to x + xError at y and y - yError to y + yError at x (the
//    shape and skeleton types are not drawn).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoErrorPointField : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoErrorPointField)

 public:
  enum ShapeType : int { NOSHAPE = 0, RECTANGLESHAPE = 1, QUADRANGLESHAPE = 2, ELLIPSESHAPE = 3 };
  enum SkeletonType : int {
    NOSKELETON = 0,
    CROSS1SKELETON = 1,
    CROSS2SKELETON = 2,
    CROSS3SKELETON = 3,
    BARSKELETON = 4
  };

  PoErrorPointField() { init(1, 0, nullptr, nullptr, nullptr, RECTANGLESHAPE, CROSS1SKELETON); }
  PoErrorPointField(int num, const SbVec2f* points, const float* xErrors, const float* yErrors, ShapeType shape,
                    SkeletonType skeleton) {
    init(0, num, points, xErrors, yErrors, shape, skeleton);
  }

  void rebuild() override;

 protected:
  ~PoErrorPointField() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const SbVec2f* points, const float* xErrors, const float* yErrors,
            ShapeType shape, SkeletonType skeleton);

 private:
  std::vector<SbVec2f> points;
  std::vector<float> xErrors;
  std::vector<float> yErrors;
};
