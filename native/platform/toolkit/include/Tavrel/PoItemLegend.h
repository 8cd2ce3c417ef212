// A legend of named items, each with a colour box.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, corner1, corner2, numItems, names,
//    colors): the default constructor with 1, (0, 0), (1, 1), 0 and null
//    lists. init copies numItems names (a null list or name gives an empty
//    name) and numItems colours (none for a null pointer); it does not build.
//  - Its build makes one part an item, from the top down:
//    "item (x1, yLow)..(x2, yHigh) <colour or none> \"<name>\"", the items
//    sharing the height between the corners evenly.
//  - Drawing (PoDrawing.h): in each item's row of height h, a square of
//    side 0.6 h, 0.2 h in from the row's left and centred in height, filled
//    with the item's colour (outlined in black for an item without one),
//    then the name beginning 0.2 h right of the square, centred in height.
//    The row's right end does not bound the text.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoLegend.h>

#include <string>
#include <vector>

class PoItemLegend : public PoLegend, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoItemLegend)

 public:
  PoItemLegend() { init(1, SbVec2f(0, 0), SbVec2f(1, 1), 0, nullptr, nullptr); }
  PoItemLegend(const SbVec2f& corner1, const SbVec2f& corner2, int numItems, const char** names,
               const SbColor* colors) {
    init(0, corner1, corner2, numItems, names, colors);
  }

  void rebuild() override;

 protected:
  ~PoItemLegend() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, const SbVec2f& corner1, const SbVec2f& corner2, int numItems, const char** names,
            const SbColor* colors);

 private:
  SbVec2f corner1;
  SbVec2f corner2;
  std::vector<std::string> names;
  std::vector<SbColor> colors;
};
