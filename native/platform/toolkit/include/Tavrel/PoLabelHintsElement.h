// The current label hints of a traversal: path, justification, a text (kept
// as a copy) and two flags; by default PATHRIGHT, LEFT, the empty text, 0, 0.
// See PoElementSubClass.h.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoElementSubClass.h>
#include <Tavrel/PoLabelHints.h>

#include <string>

class PoLabelHintsElement : public SoReplacedElement {
  PO_ELEMENT_HEADER(PoLabelHintsElement)
 public:
  // text may be null (kept as the empty text).
  static void set(SoState* state, SoNode* node, PoLabelHints::LabelPath labelPath,
                  PoLabelHints::Justification justification, const char* text, int first, int second);

  // --- Used inside this toolkit (not journaled) ---
  static void setValue(SoState* state, SoNode* node, PoLabelHints::LabelPath labelPath,
                       PoLabelHints::Justification justification, const char* text, int first, int second);
  TAVREL_STANDIN_ONLY static const PoLabelHintsElement* current(SoState* state);
  TAVREL_STANDIN_ONLY PoLabelHints::LabelPath getLabelPath() const { return labelPath; }
  TAVREL_STANDIN_ONLY PoLabelHints::Justification getJustification() const { return justification; }
  TAVREL_STANDIN_ONLY const std::string& getText() const { return text; }
  TAVREL_STANDIN_ONLY int getFirstFlag() const { return first; }
  TAVREL_STANDIN_ONLY int getSecondFlag() const { return second; }

 private:
  PoLabelHints::LabelPath labelPath = PoLabelHints::PATHRIGHT;
  PoLabelHints::Justification justification = PoLabelHints::LEFT;
  std::string text;
  int first = 0;
  int second = 0;
};
