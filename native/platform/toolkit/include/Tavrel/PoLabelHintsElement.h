// The current label hints of a traversal: path, justification, a text (kept
// as a copy) and two flags; by default PATHRIGHT, LEFT, the empty text, 0, 0.
// See PoElementSubClass.h.
#pragma once

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
  static const PoLabelHintsElement* current(SoState* state);
  PoLabelHints::LabelPath getLabelPath() const { return labelPath; }
  PoLabelHints::Justification getJustification() const { return justification; }
  const std::string& getText() const { return text; }
  int getFirstFlag() const { return first; }
  int getSecondFlag() const { return second; }

 private:
  PoLabelHints::LabelPath labelPath = PoLabelHints::PATHRIGHT;
  PoLabelHints::Justification justification = PoLabelHints::LEFT;
  std::string text;
  int first = 0;
  int second = 0;
};
