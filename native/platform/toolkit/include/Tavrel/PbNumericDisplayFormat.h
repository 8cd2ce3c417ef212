// How graph annotations write numbers: a format type and two ints, the width
// and the precision.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - format(value) writes the value, then pads it with spaces on the left to
//    the width:
//      FLOATFORMAT    fixed point with precision digits after the point
//                     ("%.*f");
//      INTEGERFORMAT  rounded to an integer, without a point ("%.0f"); the
//                     precision is not used;
//      AUTOFORMAT     precision significant digits, fixed or exponent form
//                     whichever is shorter, without trailing zeros ("%.*g");
//                     a precision of 0 counts as 1.
//    Any other type value is taken as AUTOFORMAT. A width or precision below
//    0 counts as 0; the width counts at most 64, the precision at most 16.
//    NaN and infinities are written "nan", "inf" and "-inf".
//  - The format type and the two ints are kept as given and read directly
//    (inline accessor), in setFormat's order.
//  - The destructor is inline.
#pragma once

#include <Corvel/SbString.h>
#include <Tavrel/PbBase.h>

class PbNumericDisplayFormat : public PbBase {
 public:
  enum FormatType : int { AUTOFORMAT = 0, FLOATFORMAT = 1, INTEGERFORMAT = 2 };

  PbNumericDisplayFormat(FormatType type, int width, int precision);
  PbNumericDisplayFormat(const PbNumericDisplayFormat& other);
  ~PbNumericDisplayFormat() override {}

  void setFormat(FormatType type, int width, int precision);
  void getFormat(FormatType& type, int& width, int& precision) const {
    type = formatType;
    width = formatWidth;
    precision = formatPrecision;
  }

  // The value as the format writes it.
  SbString format(float value) const;

 private:
  FormatType formatType;
  int formatWidth;
  int formatPrecision;
};
