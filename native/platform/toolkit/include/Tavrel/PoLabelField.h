// Labels at points: a string and a value each, joined as the concatenation
// type says.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, points, strings, values,
//    offset, concatType, justification, verticalJustification): the default
//    constructor with 1, 0, null lists, 0, STRINGBEFOREVALUE, LEFT, BASE.
//    init copies num points, num strings (a null list or string gives an
//    empty one) and num values (none for a null pointer); it does not build.
//  - The format is kept by address (null: none) and given back as is;
//    setting it does not rebuild the node.
//  - Its build makes one part a point that has a value:
//    "label <point> \"<string>\" <value>" (STRINGBEFOREVALUE,
//    STRINGABOVEVALUE) or "label <point> <value> \"<string>\"" (the others).
//  - Drawing (PoDrawing.h): each label as text at its point moved up by the
//    offset: the string and the value (with the format when there is one,
//    "%g" otherwise) joined by a space in the order of the concatenation
//    type, or, for the ABOVE types, as two texts, the upper one on the point
//    and the lower one hanging from it. Horizontally the text begins at the
//    point (LEFT), ends there (RIGHT) or is centred on it (CENTER);
//    vertically it hangs from the point (TOP), is centred on it (CAP, HALF)
//    or stands on it (BASE, BOTTOM).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <string>
#include <vector>

class PbNumericDisplayFormat;

class PoLabelField : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoLabelField)

 public:
  enum Justification : int { LEFT = 0, RIGHT = 1, CENTER = 2 };
  enum VerticalJustification : int { TOP = 0, CAP = 1, HALF = 2, BASE = 3, BOTTOM = 4 };
  enum CoordinateType : int { COORDINATEINDOMAIN = 0, COORDINATEINCURRENTUNIT = 1 };
  enum ConcatType : int { STRINGBEFOREVALUE = 0, VALUEBEFORESTRING = 1, STRINGABOVEVALUE = 2, VALUEABOVESTRING = 3 };

  PoLabelField() { init(1, 0, nullptr, nullptr, nullptr, 0.0f, STRINGBEFOREVALUE, LEFT, BASE); }
  PoLabelField(int num, const SbVec2f* points, const char** strings, const float* values, float offset,
               ConcatType concatType, Justification justification, VerticalJustification verticalJustification) {
    init(0, num, points, strings, values, offset, concatType, justification, verticalJustification);
  }

  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;

  void rebuild() override;

 protected:
  ~PoLabelField() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const SbVec2f* points, const char** strings, const float* values, float offset,
            ConcatType concatType, Justification justification, VerticalJustification verticalJustification);

 private:
  std::vector<SbVec2f> points;
  std::vector<std::string> strings;
  std::vector<float> values;
  float offset = 0.0f;
  ConcatType concatType = STRINGBEFOREVALUE;
  Justification justification = LEFT;
  VerticalJustification verticalJustification = BASE;
  PbNumericDisplayFormat* format = nullptr;
};
