// Base of the histograms: the attribute objects that colour and label them.
// Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The text attributes, the data mapping and the format are kept by
//    address (null: none) and given back as is; setting one does not rebuild
//    the node.
//  - Drawing (PoDrawing.h): each bar of the build (see the concrete classes)
//    is a filled rectangle over the middle eight tenths of its span, from the
//    origin's other coordinate to that plus the value (type X: the bars
//    stand along x and rise in y; type Y: they lie along y and reach out in
//    x), coloured by the data mapping's colour of the value when there is
//    one, otherwise in the class's colour. Each bar's name is written at
//    the origin's side of it (under a bar of type X, left of one of type
//    Y) and its value, with the format when there is one ("%g" otherwise),
//    at its other end, outside the bar; both a tenth of the bar's span away
//    from the bar.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoChart.h>

#include <string>
#include <vector>

class PbDataMapping;
class PbMiscTextAttr;
class PbNumericDisplayFormat;

class PoHistogram : public PoChart, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoHistogram)

 public:
  enum Type : int { X = 0, Y = 1 };
  enum Position : int {
    POSTOPOUT = 0,
    POSTOPIN = 1,
    POSBOTTOMOUT = 2,
    POSBOTTOMIN = 3,
    POSRIGHTOUT = 4,
    POSRIGHTIN = 5,
    POSLEFTOUT = 6,
    POSLEFTIN = 7,
    POSCENTER = 8,
    POSDEPEND = 9
  };
  enum Visibility : int { VISIBILITYOFF = 0, VISIBILITYON = 1 };
  enum TextPath : int { PATHRIGHT = 0, PATHLEFT = 1, PATHUP = 2, PATHDOWN = 3, PATHDEPEND = 4 };
  enum BarSpaceType : int { RELSPACE = 0, FIXEDSPACE = 1 };
  enum Coloring : int { COLORLIST = 0, DATAMAPPING = 1 };

  void setMiscTextAttr(PbMiscTextAttr* attr);
  PbMiscTextAttr* getMiscTextAttr() const;
  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;
  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;

 protected:
  PoHistogram();
  ~PoHistogram() override;
  // The parts and the drawing of one bar a value, sharing size evenly from
  // the origin along the type's direction; bar i named names[i], coloured
  // colors[i] (without a data mapping).
  TAVREL_STANDIN_ONLY void buildBars(const SbVec2f& origin, float size, Type type, const std::vector<float>& values,
                 const std::vector<std::string>& names, const std::vector<SbColor>& colors);

 private:
  PbMiscTextAttr* miscTextAttr = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbNumericDisplayFormat* format = nullptr;
};
