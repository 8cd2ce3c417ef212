// Base of the single graduated axes (cartesian, polar, angular, time).
// Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - An axis keeps its settings as its constructor gives them and computes
//    its graduations when it is built (rebuild(): pre-rebuild callbacks,
//    build, post-rebuild callbacks). Each graduation is a value and a label;
//    the classes below say which values and labels they make. An axis makes
//    at most 65,535 graduations: settings that would make more make none.
//  - Labels are written with the axis's number format when it has one (see
//    PbNumericDisplayFormat.h), otherwise with "%g" (a negative zero is
//    written "0").
//  - getGrad(visibility, position, path, labels, first, last, current,
//    fontName): VISIBILITYON, GRADBELOW, PATHRIGHT; the labels of the last
//    build joined by "\n" ("" before the first build or when there are
//    none); the values of the first and last graduation (0 and 0 when there
//    are none); current is 1 when the axis is built and unchanged since,
//    0 otherwise; the font name of the text attributes ("" without).
//  - getTitle(visibility, position, path, title, start, end, fontName):
//    VISIBILITYON with a non-empty title, else VISIBILITYOFF; TITLEMIDDLE;
//    PATHRIGHT; the title; the values at the start and at the end of the
//    axis (in the order the axis runs; a time axis gives coordinates); the
//    font name as for getGrad.
//  - getTick(visibility, position, mainLength, subLength, subDef, mainTicks,
//    subTicks, firstTick): VISIBILITYON, TICKGRADSIDE, 0.04, 0.02,
//    NUMSUBTICK; the number of graduations of the last build; the number of
//    sub-ticks between two graduations (the class's); 0.
//  - getMargin: RELMARGIN, 0.1, 0.1. getGrid: VISIBILITYOFF, 0, 0.
//    getArrow: VISIBILITYOFF, 0.03, 0.015.
//  - getReverseFlag(): AXISREVERSE when the values decrease from the start
//    of the axis to its end, AXISNOREVERSE otherwise (from the settings,
//    built or not).
//  - The text attributes are kept by address (null: none); setting them is
//    a change of the node (PoBase.h).
//  - Drawing (PoDrawing.h). The build draws the axis line, then at each
//    graduation a tick mark and the label. Where the line lies, where a
//    value sits on it and on which side the graduations go is each class's
//    (their headers). The tick is a segment from the value's point towards
//    the graduation side, 0.04 of the axis's length long (getTick's main
//    length; the length of an angular axis is its radius); the label sits
//    half a tick further, written away from the axis: centred and hanging
//    below a tick that points down, centred above one that points up,
//    ending left of one that points left, beginning right of one that
//    points right (vertically centred for these two). Sub-ticks, titles and
//    grids are not drawn. An axis with a domain maps all of it through the
//    domain.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBase.h>
#include <Tavrel/PoDrawing.h>

#include <vector>

class PbMiscTextAttr;
class PbNumericDisplayFormat;

class PoAxis : public PoBase, public PoDrawing {
  PO_GRAPH_KIT_HEADER(PoAxis)

 public:
  enum Visibility : int { VISIBILITYOFF = 0, VISIBILITYON = 1, VISIBILITYDEPEND = 2 };
  enum TextPath : int { PATHRIGHT = 0, PATHLEFT = 1, PATHUP = 2, PATHDOWN = 3, PATHDEPEND = 4 };
  enum GradPosition : int { GRADABOVE = 0, GRADBELOW = 1, GRADDEPEND = 2 };
  enum MarginType : int { RELMARGIN = 0, FIXEDMARGIN = 1 };
  enum TickPosition : int { TICKGRADSIDE = 0, TICKGRADOTHERSIDE = 1, TICKACROSSAXIS = 2 };
  enum TitlePosition : int { TITLEMIDDLE = 0, TITLEEND = 1, TITLEDEPEND = 2 };
  enum TickSubDef : int { NUMSUBTICK = 0, PERIODMAINTICK = 1 };
  enum AxisReverse : int { AXISNOREVERSE = 0, AXISREVERSE = 1, AXISREVERSEDEPEND = 2 };

  void setMiscTextAttr(PbMiscTextAttr* attr);
  PbMiscTextAttr* getMiscTextAttr() const;
  AxisReverse getReverseFlag() const;
  void getGrad(Visibility& visibility, GradPosition& position, TextPath& path, SbString& labels, float& first,
               float& last, int& current, SbString& fontName) const;
  void getTitle(Visibility& visibility, TitlePosition& position, TextPath& path, SbString& title, float& start,
                float& end, SbString& fontName) const;
  void getTick(Visibility& visibility, TickPosition& position, float& mainLength, float& subLength,
               TickSubDef& subDef, unsigned short& mainTicks, unsigned short& subTicks,
               unsigned short& firstTick) const;
  void getMargin(MarginType& type, float& start, float& end) const;
  void getGrid(Visibility& visibility, float& gradSide, float& otherSide) const;
  void getArrow(Visibility& visibility, float& length, float& height) const;

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  struct Graduation {
    double value;
    TAVREL_STANDIN_ONLY SbString label;
  };
  TAVREL_STANDIN_ONLY const std::vector<Graduation>& graduations() const { return grads; }
  TAVREL_STANDIN_ONLY const PbMiscTextAttr* textAttributes() const { return textAttr; }

 protected:
  PoAxis();
  ~PoAxis() override;

  TAVREL_STANDIN_ONLY void build() override;
  // The graduations of the current settings, in the order the axis runs.
  TAVREL_STANDIN_ONLY virtual void makeGraduations(std::vector<Graduation>& out) const = 0;
  // The values at the start and at the end of the axis.
  TAVREL_STANDIN_ONLY virtual void range(double& start, double& end) const = 0;
  // Sub-ticks between two graduations.
  TAVREL_STANDIN_ONLY virtual unsigned short subTicks() const { return 0; }
  // A value written with the format (null: "%g").
  TAVREL_STANDIN_ONLY static SbString label(double value, const PbNumericDisplayFormat* format);
  // Linear graduations: the multiples of step from start to end (a step
  // of 0 or less: automatic, see PoLinearAxis.h).
  TAVREL_STANDIN_ONLY static void linearGraduations(double start, double end, double step, const PbNumericDisplayFormat* format,
                                std::vector<Graduation>& out);
  TAVREL_STANDIN_ONLY static double automaticStep(double start, double end);
  // Logarithmic graduations between the exponents start and end.
  TAVREL_STANDIN_ONLY static void logGraduations(double start, double end, const std::vector<unsigned short>& digits,
                             std::vector<Graduation>& out);
  // Where the axis lies: the points of its line, the point of a value, the
  // unit vector from that point towards the graduation side, and the
  // length that ticks are a share of.
  TAVREL_STANDIN_ONLY virtual std::vector<SbVec3f> axisLine() const = 0;
  TAVREL_STANDIN_ONLY virtual SbVec3f pointOf(double value) const = 0;
  TAVREL_STANDIN_ONLY virtual SbVec3f gradSide(double value) const = 0;
  TAVREL_STANDIN_ONLY virtual double axisLength() const = 0;
  // How far along the axis a value lies: 0 at the start value, 1 at the end
  // value, linear in the value (in its logarithm for logarithmic axes); 0
  // when both end values are equal.
  TAVREL_STANDIN_ONLY double fraction(double value) const;
  TAVREL_STANDIN_ONLY virtual bool logarithmic() const { return false; }

  TAVREL_STANDIN_ONLY SbString title;

 private:
  // The drawing of the graduations just made.
  void drawAxis();
  PbMiscTextAttr* textAttr = nullptr;
  std::vector<Graduation> grads;
};
