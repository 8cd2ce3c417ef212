// High-low-close charts and the fields of markers, bars, labels and error
// points: what they are given, kept by value, and the parts their builds make.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PoBiErrorPointField.h>
#include <Tavrel/PoErrorPointField.h>
#include <Tavrel/PoHighLowClose.h>
#include <Tavrel/PoLabelField.h>
#include <Tavrel/PoPointsFieldBars.h>
#include <Tavrel/PoValuedMarkerField.h>

#include <string>

PO_GRAPH_KIT_SOURCE(PoHighLowClose, PoQuorvex, "PoHighLowClose", {"bars"})
PO_GRAPH_KIT_SOURCE(PoValuedMarkerField, PoQuorvex, "PoValuedMarkerField", {"markers"})
PO_GRAPH_KIT_SOURCE(PoPointsFieldBars, PoQuorvex, "PoPointsFieldBars", {"bars"})
PO_GRAPH_KIT_SOURCE(PoErrorPointField, PoQuorvex, "PoErrorPointField", {"errors"})
PO_GRAPH_KIT_SOURCE(PoBiErrorPointField, PoQuorvex, "PoBiErrorPointField", {"errors"})
PO_GRAPH_KIT_SOURCE(PoLabelField, PoQuorvex, "PoLabelField", {"labels"})

namespace {
template <class T>
std::vector<T> copied(const T* data, int count) {
  return data == nullptr || count <= 0 ? std::vector<T>() : std::vector<T>(data, data + count);
}

template <class T>
std::string text(const T& value) {
  std::string out;
  journalFormat(out, value);
  return out;
}

// The number of positions that have a value in every list.
template <class... Lists>
std::size_t common(const Lists&... lists) {
  std::size_t n = static_cast<std::size_t>(-1);
  ((n = lists.size() < n ? lists.size() : n), ...);
  return n;
}
SbVec3f flat(const SbVec2f& p) { return SbVec3f(p[0], p[1], 0.0f); }

const SbColor kSteelBlue(0.27f, 0.51f, 0.71f);
}  // namespace

// --- high-low-close --------------------------------------------------------------------

PoHighLowClose::~PoHighLowClose() = default;

void PoHighLowClose::init(int isDefault, int num, const float* x, const float* high, const float* low,
                          const float* close) {
  CallJournal::record("PoHighLowClose::init", isDefault, num, journalArray(x, num), journalArray(high, num),
                      journalArray(low, num), journalArray(close, num));
  xs = copied(x, num);
  highs = copied(high, num);
  lows = copied(low, num);
  closes = copied(close, num);
}

void PoHighLowClose::rebuild() {
  CallJournal::record("PoHighLowClose::rebuild");
  runRebuild();
}

void PoHighLowClose::build() {
  CallJournal::record("PoHighLowClose::build");
  builtParts.clear();
  for (std::size_t i = 0; i < common(xs, highs, lows, closes); ++i)
    builtParts.push_back("hlc " + text(xs[i]) + " " + text(lows[i]) + ".." + text(highs[i]) + " close " +
                         text(closes[i]));
  clearDrawing();
  for (std::size_t i = 0; i < common(xs, highs, lows, closes); ++i) {
    const float x = xs[i];
    addLine({SbVec3f(x, lows[i], 0), SbVec3f(x, highs[i], 0)});
    const float mark = quarterGap(xs, highs[i] - lows[i]);
    addLine({SbVec3f(x, closes[i], 0), SbVec3f(x + mark, closes[i], 0)});
  }
  mapThroughDomain(domainInUse());
}

// --- valued markers ---------------------------------------------------------------------

PoValuedMarkerField::~PoValuedMarkerField() = default;

void PoValuedMarkerField::init(int isDefault, int num, const SbVec2f* newPoints, const float* newValues1,
                               const float* newValues2) {
  CallJournal::record("PoValuedMarkerField::init", isDefault, num, journalArray(newPoints, num),
                      journalArray(newValues1, num), journalArray(newValues2, num));
  points = copied(newPoints, num);
  values1 = copied(newValues1, num);
  values2 = copied(newValues2, num);
}

void PoValuedMarkerField::setDataMapping(PbDataMapping* mapping) {
  CallJournal::record("PoValuedMarkerField::setDataMapping", static_cast<const void*>(mapping));
  dataMapping = mapping;
}

PbDataMapping* PoValuedMarkerField::getDataMapping() const {
  CallJournal::record("PoValuedMarkerField::getDataMapping");
  return dataMapping;
}

void PoValuedMarkerField::rebuild() {
  CallJournal::record("PoValuedMarkerField::rebuild");
  runRebuild();
}

void PoValuedMarkerField::build() {
  CallJournal::record("PoValuedMarkerField::build");
  builtParts.clear();
  for (std::size_t i = 0; i < common(points, values1, values2); ++i)
    builtParts.push_back("marker " + text(points[i]) + " " + text(values1[i]) + " " + text(values2[i]));
  clearDrawing();
  for (std::size_t i = 0; i < common(points, values1, values2); ++i)
    addText(flat(points[i]), "\u25CF", Primitive::MIDDLE, Primitive::CENTRAL,
            dataMapping != nullptr ? dataMapping->colorOf(values2[i]) : SbColor(0, 0, 0));
  mapThroughDomain(domainInUse());
}

// --- bars at points ---------------------------------------------------------------------

PoPointsFieldBars::~PoPointsFieldBars() = default;

void PoPointsFieldBars::init(int isDefault, int num, const SbVec3f* newPoints, const float* newHeights, float w1,
                             float w2) {
  CallJournal::record("PoPointsFieldBars::init", isDefault, num, journalArray(newPoints, num),
                      journalArray(newHeights, num), w1, w2);
  points = copied(newPoints, num);
  heights = copied(newHeights, num);
  width1 = w1;
  width2 = w2;
}

void PoPointsFieldBars::setDataMapping(PbDataMapping* mapping) {
  CallJournal::record("PoPointsFieldBars::setDataMapping", static_cast<const void*>(mapping));
  dataMapping = mapping;
}

PbDataMapping* PoPointsFieldBars::getDataMapping() const {
  CallJournal::record("PoPointsFieldBars::getDataMapping");
  return dataMapping;
}

void PoPointsFieldBars::rebuild() {
  CallJournal::record("PoPointsFieldBars::rebuild");
  runRebuild();
}

void PoPointsFieldBars::build() {
  CallJournal::record("PoPointsFieldBars::build");
  builtParts.clear();
  for (std::size_t i = 0; i < common(points, heights); ++i)
    builtParts.push_back("bar " + text(points[i]) + " height " + text(heights[i]) + " size " + text(width1) + " x " +
                         text(width2));
  clearDrawing();
  for (std::size_t i = 0; i < common(points, heights); ++i) {
    const SbVec3f& p = points[i];
    const float dx = width1 / 2, dy = width2 / 2;
    addPolygon({SbVec3f(p[0] - dx, p[1] - dy, 0), SbVec3f(p[0] + dx, p[1] - dy, 0), SbVec3f(p[0] + dx, p[1] + dy, 0),
                SbVec3f(p[0] - dx, p[1] + dy, 0)},
               dataMapping != nullptr ? dataMapping->colorOf(heights[i]) : kSteelBlue);
  }
  mapThroughDomain(domainInUse());
}

// --- error points -----------------------------------------------------------------------

PoErrorPointField::~PoErrorPointField() = default;

void PoErrorPointField::init(int isDefault, int num, const SbVec2f* newPoints, const float* newXErrors,
                             const float* newYErrors, ShapeType shape, SkeletonType skeleton) {
  CallJournal::record("PoErrorPointField::init", isDefault, num, journalArray(newPoints, num),
                      journalArray(newXErrors, num), journalArray(newYErrors, num), static_cast<int>(shape),
                      static_cast<int>(skeleton));
  points = copied(newPoints, num);
  xErrors = copied(newXErrors, num);
  yErrors = copied(newYErrors, num);
}

void PoErrorPointField::rebuild() {
  CallJournal::record("PoErrorPointField::rebuild");
  runRebuild();
}

void PoErrorPointField::build() {
  CallJournal::record("PoErrorPointField::build");
  builtParts.clear();
  for (std::size_t i = 0; i < common(points, xErrors, yErrors); ++i)
    builtParts.push_back("error " + text(points[i]) + " +-" + text(SbVec2f(xErrors[i], yErrors[i])));
  clearDrawing();
  for (std::size_t i = 0; i < common(points, xErrors, yErrors); ++i) {
    const float x = points[i][0], y = points[i][1];
    addLine({SbVec3f(x - xErrors[i], y, 0), SbVec3f(x + xErrors[i], y, 0)});
    addLine({SbVec3f(x, y - yErrors[i], 0), SbVec3f(x, y + yErrors[i], 0)});
  }
  mapThroughDomain(domainInUse());
}

PoBiErrorPointField::~PoBiErrorPointField() = default;

void PoBiErrorPointField::init(int isDefault, int num, const SbVec2f* newPoints, const float* newXLow,
                               const float* newXHigh, const float* newYLow, const float* newYHigh,
                               VariationType variationType, int flag1, int flag2) {
  CallJournal::record("PoBiErrorPointField::init", isDefault, num, journalArray(newPoints, num),
                      journalArray(newXLow, num), journalArray(newXHigh, num), journalArray(newYLow, num),
                      journalArray(newYHigh, num), static_cast<int>(variationType), flag1, flag2);
  points = copied(newPoints, num);
  xLow = copied(newXLow, num);
  xHigh = copied(newXHigh, num);
  yLow = copied(newYLow, num);
  yHigh = copied(newYHigh, num);
}

void PoBiErrorPointField::rebuild() {
  CallJournal::record("PoBiErrorPointField::rebuild");
  runRebuild();
}

void PoBiErrorPointField::build() {
  CallJournal::record("PoBiErrorPointField::build");
  builtParts.clear();
  for (std::size_t i = 0; i < common(points, xLow, xHigh, yLow, yHigh); ++i) {
    const float x = points[i][0];
    const float y = points[i][1];
    builtParts.push_back("error " + text(points[i]) + " x " + text(x - xLow[i]) + ".." + text(x + xHigh[i]) +
                         " y " + text(y - yLow[i]) + ".." + text(y + yHigh[i]));
  }
  clearDrawing();
  for (std::size_t i = 0; i < common(points, xLow, xHigh, yLow, yHigh); ++i) {
    const float x = points[i][0], y = points[i][1];
    addLine({SbVec3f(x - xLow[i], y, 0), SbVec3f(x + xHigh[i], y, 0)});
    addLine({SbVec3f(x, y - yLow[i], 0), SbVec3f(x, y + yHigh[i], 0)});
  }
  mapThroughDomain(domainInUse());
}

// --- labels -----------------------------------------------------------------------------

PoLabelField::~PoLabelField() = default;

void PoLabelField::init(int isDefault, int num, const SbVec2f* newPoints, const char** newStrings,
                        const float* newValues, float offset, ConcatType concat, Justification justification,
                        VerticalJustification verticalJustification) {
  CallJournal::record("PoLabelField::init", isDefault, num, journalArray(newPoints, num),
                      journalArray(newStrings, num), journalArray(newValues, num), offset,
                      static_cast<int>(concat), static_cast<int>(justification),
                      static_cast<int>(verticalJustification));
  points = copied(newPoints, num);
  strings.clear();
  for (int i = 0; i < num; ++i)
    strings.emplace_back(newStrings != nullptr && newStrings[i] != nullptr ? newStrings[i] : "");
  values = copied(newValues, num);
  this->offset = offset;
  concatType = concat;
  this->justification = justification;
  this->verticalJustification = verticalJustification;
}

void PoLabelField::setFormat(PbNumericDisplayFormat* newFormat) {
  CallJournal::record("PoLabelField::setFormat", static_cast<const void*>(newFormat));
  format = newFormat;
}

PbNumericDisplayFormat* PoLabelField::getFormat() const {
  CallJournal::record("PoLabelField::getFormat");
  return format;
}

void PoLabelField::rebuild() {
  CallJournal::record("PoLabelField::rebuild");
  runRebuild();
}

void PoLabelField::build() {
  CallJournal::record("PoLabelField::build");
  builtParts.clear();
  const bool stringFirst = concatType == STRINGBEFOREVALUE || concatType == STRINGABOVEVALUE;
  for (std::size_t i = 0; i < common(points, strings, values); ++i) {
    const std::string s = text(strings[i]);
    const std::string v = text(values[i]);
    builtParts.push_back("label " + text(points[i]) + " " + (stringFirst ? s + " " + v : v + " " + s));
  }
  clearDrawing();
  const Primitive::Anchor anchor =
      justification == RIGHT ? Primitive::END : justification == CENTER ? Primitive::MIDDLE : Primitive::START;
  const Primitive::Baseline baseline = verticalJustification == TOP ? Primitive::HANGING
                                       : verticalJustification == CAP || verticalJustification == HALF
                                           ? Primitive::CENTRAL
                                           : Primitive::BASELINE;
  for (std::size_t i = 0; i < common(points, strings, values); ++i) {
    const SbVec3f at(points[i][0], points[i][1] + offset, 0);
    const std::string& s = strings[i];
    const std::string v = valueText(values[i], format);
    if (concatType == STRINGABOVEVALUE || concatType == VALUEABOVESTRING) {
      addText(at, stringFirst ? s : v, anchor, Primitive::BASELINE);
      addText(at, stringFirst ? v : s, anchor, Primitive::HANGING);
    } else {
      addText(at, stringFirst ? s + " " + v : v + " " + s, anchor, baseline);
    }
  }
  mapThroughDomain(domainInUse());
}
