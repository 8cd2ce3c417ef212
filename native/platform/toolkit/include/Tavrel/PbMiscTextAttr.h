// Text attributes of graph annotations: the font, the length of text lines,
// and whether the text is drawn with a profile.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The attributes are kept as given and reported; this toolkit draws no
//    text. The line-length type is a char holding a LineLength value (any
//    char is kept), the length an int.
//  - A new object has the font "Sans", LINELENGTHMAX with a length of 0
//    (no limit), and both profile flags off.
//  - The font name, the line length and the two flags are read directly
//    (inline accessors).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Tavrel/PbBase.h>

class PbMiscTextAttr : public PbBase {
 public:
  enum LineLength : int { LINELENGTHMAX = 0, LINELENGTHMIN = 1 };

  PbMiscTextAttr();
  PbMiscTextAttr(const PbMiscTextAttr& other);
  ~PbMiscTextAttr() override;

  void setFontName(const SbString& name);
  TAVREL_ASSUMED SbString getFontName() const { return fontName; }

  void setLineLength(char type, int length);
  TAVREL_ASSUMED void getLineLength(char& type, int& length) const {
    type = lineLengthType;
    length = lineLength;
  }

  void enableProfile(SbBool flag);
  TAVREL_ASSUMED SbBool isProfileEnabled() const { return profile; }
  void enablePredefinedProfile(SbBool flag);
  TAVREL_ASSUMED SbBool isPredefinedProfileEnabled() const { return predefinedProfile; }

 private:
  SbString fontName;
  char lineLengthType = LINELENGTHMAX;
  int lineLength = 0;
  SbBool profile = 0;
  SbBool predefinedProfile = 0;
};
