// Markers at points, each with two values (the toolkit's marker value and
// its colour value), coloured through a data mapping.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, points, values1, values2):
//    the default constructor with 1, 0 and null lists. init copies num points
//    and num values of each list (none for a null pointer); it does not
//    build.
//  - The data mapping is kept by address (null: none) and given back as is;
//    setting it does not rebuild the node.
//  - Its build makes one part a point that has both values:
//    "marker <point> <value1> <value2>".
//  - Drawing (PoDrawing.h): each marker as the text "\u25CF" (a black
//    disc) centred on its point, in the data mapping's colour of value2
//    when there is a mapping.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PbDataMapping;

class PoValuedMarkerField : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoValuedMarkerField)

 public:
  PoValuedMarkerField() { init(1, 0, nullptr, nullptr, nullptr); }
  PoValuedMarkerField(int num, const SbVec2f* points, const float* values1, const float* values2) {
    init(0, num, points, values1, values2);
  }

  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;

  void rebuild() override;

 protected:
  ~PoValuedMarkerField() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const SbVec2f* points, const float* values1, const float* values2);

 private:
  std::vector<SbVec2f> points;
  std::vector<float> values1;
  std::vector<float> values2;
  PbDataMapping* dataMapping = nullptr;
};
