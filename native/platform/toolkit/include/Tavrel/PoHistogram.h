// Base of the histograms: the attribute objects that colour and label them.
// Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The text attributes, the data mapping and the format are kept by
//    address (null: none) and given back as is; setting one does not rebuild
//    the node.
#pragma once

#include <Tavrel/PoChart.h>

class PbDataMapping;
class PbMiscTextAttr;
class PbNumericDisplayFormat;

class PoHistogram : public PoChart {
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

 private:
  PbMiscTextAttr* miscTextAttr = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbNumericDisplayFormat* format = nullptr;
};
