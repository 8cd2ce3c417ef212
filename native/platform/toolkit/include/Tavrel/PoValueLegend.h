// Base of the value legends, which show how values map to colours: the
// isovalue list, the data mapping and the format they draw. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The isovalue list, the data mapping and the format are kept by address
//    (null: none) and given back as is; setting one does not rebuild the
//    node.
//  - A value legend is placed between two corners (default (0, 0) and
//    (1, 1)); its build makes the part "frame <corner1>..<corner2>", then,
//    when it has an isovalue list, one part a value of the list in order,
//    "value <text> <colour or none>": the value written with the format
//    ("%g" without one) and its colour through the data mapping (none
//    without one).
//  - Drawing (PoDrawing.h): the frame as a black outline; inside it, one
//    row a value from the bottom up, sharing the height evenly, drawn as the
//    rows of an item legend (PoItemLegend.h): a square in the value's
//    colour (grey (0.5, 0.5, 0.5) without a data mapping), then the text.
//    Setting the list, the mapping or the format does not rebuild the node:
//    a legend draws the values of its last build.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoLegend.h>

class PbDataMapping;
class PbIsovaluesList;
class PbNumericDisplayFormat;

class PoValueLegend : public PoLegend, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoValueLegend)

 public:
  void setIsovaluesList(PbIsovaluesList* list);
  PbIsovaluesList* getIsovaluesList() const;
  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;
  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;

  void rebuild() override;

 protected:
  PoValueLegend();
  PoValueLegend(const SbVec2f& corner1, const SbVec2f& corner2);
  ~PoValueLegend() override;
  TAVREL_STANDIN_ONLY void build() override;

 private:
  SbVec2f corner1;
  SbVec2f corner2;
  PbIsovaluesList* isovaluesList = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbNumericDisplayFormat* format = nullptr;
};
