// Base of the value legends, which show how values map to colours: the
// isovalue list, the data mapping and the format they draw. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The isovalue list, the data mapping and the format are kept by address
//    (null: none) and given back as is; setting one does not rebuild the
//    node.
//  - A value legend is placed between two corners (default (0, 0) and
//    (1, 1)); its build makes one part, "frame <corner1>..<corner2>".
#pragma once

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
  void build() override;

 private:
  SbVec2f corner1;
  SbVec2f corner2;
  PbIsovaluesList* isovaluesList = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbNumericDisplayFormat* format = nullptr;
};
