// Bars standing at 3D points, their heights given by values, coloured
// through a data mapping.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, points, heights, width1,
//    width2): the default constructor with 1, 0, null lists and widths 1.
//    init copies num points and num heights (none for a null pointer); it
//    does not build.
//  - The data mapping is kept by address (null: none) and given back as is;
//    setting it does not rebuild the node.
//  - Its build makes one part a point that has a height:
//    "bar <point> height <h> size <width1> x <width2>".
//  - Drawing (PoDrawing.h): the picture drops z, so each bar shows as its
//    base, a width1 x width2 rectangle (x by y) centred on its point,
//    filled with the data mapping's colour of its height (steel blue
//    (0.27, 0.51, 0.71) without a mapping).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PbDataMapping;

class PoPointsFieldBars : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoPointsFieldBars)

 public:
  PoPointsFieldBars() { init(1, 0, nullptr, nullptr, 1.0f, 1.0f); }
  PoPointsFieldBars(int num, const SbVec3f* points, const float* heights, float width1, float width2) {
    init(0, num, points, heights, width1, width2);
  }

  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;

  void rebuild() override;

 protected:
  ~PoPointsFieldBars() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const SbVec3f* points, const float* heights, float width1, float width2);

 private:
  std::vector<SbVec3f> points;
  std::vector<float> heights;
  float width1 = 1.0f;
  float width2 = 1.0f;
  PbDataMapping* dataMapping = nullptr;
};
