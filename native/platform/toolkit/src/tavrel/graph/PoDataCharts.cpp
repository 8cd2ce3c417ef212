// Curves, error curves, histograms, item and value legends: what they are given,
// kept by value, and the parts their builds make.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDataMapping.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PoAutoValueLegend.h>
#include <Tavrel/PoCurve.h>
#include <Tavrel/PoCurve3.h>
#include <Tavrel/PoErrorCurve.h>
#include <Tavrel/PoHistogram.h>
#include <Tavrel/PoItemLegend.h>
#include <Tavrel/PoLegend.h>
#include <Tavrel/PoLinearValueLegend.h>
#include <Tavrel/PoMultipleHistogram.h>
#include <Tavrel/PoNonLinearValueLegend1.h>
#include <Tavrel/PoNonLinearValueLegend2.h>
#include <Tavrel/PoNonLinearValueLegend3.h>
#include <Tavrel/PoSingleHistogram.h>
#include <Tavrel/PoValueLegend.h>

#include <cmath>

PO_GRAPH_KIT_SOURCE(PoCurve, PoQuorvex, "PoCurve", {"curvePoints"})
PO_GRAPH_KIT_SOURCE(PoCurve3, PoQuorvex, "PoCurve3", {"curvePoints"})
PO_GRAPH_KIT_SOURCE(PoErrorCurve, PoQuorvex, "PoErrorCurve", {"curvePoints", "errorBars"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoHistogram, PoChart, "PoHistogram", {"bars", "barTexts"})
PO_GRAPH_KIT_SOURCE(PoSingleHistogram, PoHistogram, "PoSingleHistogram", {})
PO_GRAPH_KIT_SOURCE(PoMultipleHistogram, PoHistogram, "PoMultipleHistogram", {"histogTexts"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoLegend, PoBase, "PoLegend", {"title", "items"})
PO_GRAPH_KIT_SOURCE(PoItemLegend, PoLegend, "PoItemLegend", {})

namespace {
template <class T>
std::vector<T> copied(const T* data, int count) {
  return data == nullptr || count <= 0 ? std::vector<T>() : std::vector<T>(data, data + count);
}

std::vector<std::string> copiedNames(const char** names, int count) {
  std::vector<std::string> result;
  for (int i = 0; i < count; ++i) result.emplace_back(names != nullptr && names[i] != nullptr ? names[i] : "");
  return result;
}

template <class T>
std::string text(const T& value) {
  std::string out;
  journalFormat(out, value);
  return out;
}

template <class Point>
std::string polyline(const std::vector<Point>& points) {
  std::string out = "polyline";
  for (const Point& p : points) out += " " + text(p);
  return out;
}

std::vector<SbVec3f> flat(const std::vector<SbVec2f>& points) {
  std::vector<SbVec3f> out;
  for (const SbVec2f& p : points) out.emplace_back(p[0], p[1], 0.0f);
  return out;
}

const SbColor kSteelBlue(0.27f, 0.51f, 0.71f);
}  // namespace

// --- curves --------------------------------------------------------------------------

PoCurve::~PoCurve() = default;

void PoCurve::init(int isDefault, int numPoints, const SbVec2f* newPoints, CurveRep rep) {
  CallJournal::record("PoCurve::init", isDefault, numPoints, journalArray(newPoints, numPoints),
                      static_cast<int>(rep));
  points = copied(newPoints, numPoints);
  curveRep = rep;
}

void PoCurve::rebuild() {
  CallJournal::record("PoCurve::rebuild");
  runRebuild();
}

void PoCurve::build() {
  CallJournal::record("PoCurve::build");
  builtParts = {curveRep == CURVENONE ? std::string("none") : polyline(points)};
  clearDrawing();
  if (curveRep != CURVENONE && !points.empty()) addLine(flat(points));
  mapThroughDomain(domainInUse());
}

PoCurve3::~PoCurve3() = default;

void PoCurve3::init(int isDefault, int numPoints, const SbVec3f* newPoints, CurveRep rep) {
  CallJournal::record("PoCurve3::init", isDefault, numPoints, journalArray(newPoints, numPoints),
                      static_cast<int>(rep));
  points = copied(newPoints, numPoints);
  curveRep = rep;
}

void PoCurve3::rebuild() {
  CallJournal::record("PoCurve3::rebuild");
  runRebuild();
}

void PoCurve3::build() {
  CallJournal::record("PoCurve3::build");
  builtParts = {curveRep == CURVENONE ? std::string("none") : polyline(points)};
  clearDrawing();
  if (curveRep != CURVENONE && !points.empty()) addLine(points);
  mapThroughDomain(domainInUse());
}

PoErrorCurve::~PoErrorCurve() = default;

void PoErrorCurve::init(int isDefault, int numPoints, const SbVec2f* newPoints, const float* lowVariation,
                        const float* highVariation, VariationType variation, ErrorCurveRep rep) {
  CallJournal::record("PoErrorCurve::init", isDefault, numPoints, journalArray(newPoints, numPoints),
                      journalArray(lowVariation, numPoints), journalArray(highVariation, numPoints),
                      static_cast<int>(variation), static_cast<int>(rep));
  points = copied(newPoints, numPoints);
  low = copied(lowVariation, numPoints);
  high = copied(highVariation, numPoints);
  variationType = variation;
  errorCurveRep = rep;
}

void PoErrorCurve::rebuild() {
  CallJournal::record("PoErrorCurve::rebuild");
  runRebuild();
}

void PoErrorCurve::build() {
  CallJournal::record("PoErrorCurve::build");
  builtParts = {polyline(points)};
  const bool percent = variationType == PERCENTFIXEDVARIATION || variationType == PERCENTRELVARIATION;
  const bool relative = variationType == RELVARIATION || variationType == PERCENTRELVARIATION;
  std::vector<SbVec3f> lows, highs;
  std::vector<float> xs;
  for (std::size_t i = 0; i < points.size() && i < low.size() && i < high.size(); ++i) {
    const float x = points[i][0];
    const float y = points[i][1];
    const float scale = (percent ? 0.01f : 1.0f) * (relative ? std::fabs(y) : 1.0f);
    lows.emplace_back(x, y - low[i] * scale, 0.0f);
    highs.emplace_back(x, y + high[i] * scale, 0.0f);
    xs.push_back(x);
    builtParts.push_back("bar " + text(SbVec2f(x, y - low[i] * scale)) + ".." +
                         text(SbVec2f(x, y + high[i] * scale)));
  }
  clearDrawing();
  if (errorCurveRep == FILLED && !lows.empty()) {
    std::vector<SbVec3f> band = lows;
    band.insert(band.end(), highs.rbegin(), highs.rend());
    addPolygon(std::move(band), SbColor(0.75f, 0.85f, 0.95f));
  }
  if (errorCurveRep != HIGHLOWCLOSE && !points.empty()) addLine(flat(points));
  if (errorCurveRep != FILLED) {
    for (std::size_t i = 0; i < lows.size(); ++i) {
      addLine({lows[i], highs[i]});
      if (errorCurveRep == HIGHLOWCLOSE) {
        const float mark = quarterGap(xs, highs[i][1] - lows[i][1]);
        addLine({SbVec3f(xs[i], points[i][1], 0), SbVec3f(xs[i] + mark, points[i][1], 0)});
      }
    }
  }
  mapThroughDomain(domainInUse());
}

// --- histograms ----------------------------------------------------------------------

PoHistogram::PoHistogram() = default;
PoHistogram::~PoHistogram() = default;

void PoHistogram::buildBars(const SbVec2f& origin, float size, Type type, const std::vector<float>& values,
                            const std::vector<std::string>& names, const std::vector<SbColor>& colors) {
  using P = PoDrawing::Primitive;
  builtParts.clear();
  clearDrawing();
  const int along = type == Y ? 1 : 0, across = 1 - along;
  const float start = origin[along], base = origin[across];
  const float width = values.empty() ? 0.0f : size / static_cast<float>(values.size());
  // A point given along and across the bars.
  auto at = [&](float a, float b) {
    SbVec3f p(0, 0, 0);
    p[along] = a;
    p[across] = b;
    return p;
  };
  for (std::size_t i = 0; i < values.size(); ++i) {
    const float from = start + width * static_cast<float>(i);
    const float value = values[i];
    builtParts.push_back("bar " + text(from) + ".." + text(from + width) + " height " + text(value) + " " +
                         text(names[i]));
    const float a = from + 0.1f * width, b = from + 0.9f * width, middle = from + 0.5f * width;
    addPolygon({at(a, base), at(b, base), at(b, base + value), at(a, base + value)},
               dataMapping != nullptr ? dataMapping->colorOf(value) : colors[i]);
    // The name on the origin's side, the value beyond the bar's end, a tenth of the span away.
    const float gap = value >= 0 ? 0.1f * std::fabs(width) : -0.1f * std::fabs(width);
    const bool up = value >= 0;
    if (type == Y) {
      addText(at(middle, base - gap), names[i], up ? P::END : P::START, P::CENTRAL);
      addText(at(middle, base + value + gap), valueText(value, format), up ? P::START : P::END, P::CENTRAL);
    } else {
      addText(at(middle, base - gap), names[i], P::MIDDLE, up ? P::HANGING : P::BASELINE);
      addText(at(middle, base + value + gap), valueText(value, format), P::MIDDLE, up ? P::BASELINE : P::HANGING);
    }
  }
  mapThroughDomain(domainInUse());
}

void PoHistogram::setMiscTextAttr(PbMiscTextAttr* attr) {
  CallJournal::record("PoHistogram::setMiscTextAttr", static_cast<const void*>(attr));
  miscTextAttr = attr;
}

PbMiscTextAttr* PoHistogram::getMiscTextAttr() const {
  CallJournal::record("PoHistogram::getMiscTextAttr");
  return miscTextAttr;
}

void PoHistogram::setDataMapping(PbDataMapping* mapping) {
  CallJournal::record("PoHistogram::setDataMapping", static_cast<const void*>(mapping));
  dataMapping = mapping;
}

PbDataMapping* PoHistogram::getDataMapping() const {
  CallJournal::record("PoHistogram::getDataMapping");
  return dataMapping;
}

void PoHistogram::setFormat(PbNumericDisplayFormat* newFormat) {
  CallJournal::record("PoHistogram::setFormat", static_cast<const void*>(newFormat));
  format = newFormat;
}

PbNumericDisplayFormat* PoHistogram::getFormat() const {
  CallJournal::record("PoHistogram::getFormat");
  return format;
}

PoSingleHistogram::~PoSingleHistogram() = default;

void PoSingleHistogram::init(int isDefault, const SbVec2f& newOrigin, float size, PoHistogram::Type newType,
                             int numValues, const float* newValues, const char** newNames) {
  CallJournal::record("PoSingleHistogram::init", isDefault, newOrigin, size, static_cast<int>(newType), numValues,
                      journalArray(newValues, numValues), journalArray(newNames, numValues));
  origin = newOrigin;
  histogSize = size;
  type = newType;
  values = copied(newValues, numValues);
  values.resize(static_cast<std::size_t>(numValues > 0 ? numValues : 0));
  names = copiedNames(newNames, numValues);
}

void PoSingleHistogram::rebuild() {
  CallJournal::record("PoSingleHistogram::rebuild");
  runRebuild();
}

void PoSingleHistogram::build() {
  CallJournal::record("PoSingleHistogram::build");
  buildBars(origin, histogSize, type, values, names, std::vector<SbColor>(values.size(), kSteelBlue));
}

PoMultipleHistogram::~PoMultipleHistogram() = default;

void PoMultipleHistogram::init(int isDefault, const SbVec2f& newOrigin, float size, PoHistogram::Type newType,
                               int numHistog, int newNumValues, const float* newValues, const char** newHistogNames,
                               const char** newValueNames) {
  const int total = numHistog > 0 && newNumValues > 0 ? numHistog * newNumValues : 0;
  CallJournal::record("PoMultipleHistogram::init", isDefault, newOrigin, size, static_cast<int>(newType),
                      numHistog, newNumValues, journalArray(newValues, total),
                      journalArray(newHistogNames, numHistog), journalArray(newValueNames, newNumValues));
  origin = newOrigin;
  histogSize = size;
  type = newType;
  numValues = newNumValues;
  values = copied(newValues, total);
  values.resize(static_cast<std::size_t>(total));
  histogNames = copiedNames(newHistogNames, numHistog);
  valueNames = copiedNames(newValueNames, newNumValues);
}

void PoMultipleHistogram::rebuild() {
  CallJournal::record("PoMultipleHistogram::rebuild");
  runRebuild();
}

void PoMultipleHistogram::build() {
  CallJournal::record("PoMultipleHistogram::build");
  std::vector<std::string> names;
  for (const std::string& h : histogNames) {
    for (const std::string& v : valueNames) names.push_back(h + "/" + v);
  }
  buildBars(origin, histogSize, type, values, names, std::vector<SbColor>(values.size(), kSteelBlue));
}

// --- legends -------------------------------------------------------------------------

PoLegend::PoLegend() = default;
PoLegend::~PoLegend() = default;

void PoLegend::setMiscTextAttr(PbMiscTextAttr* attr) {
  CallJournal::record("PoLegend::setMiscTextAttr", static_cast<const void*>(attr));
  miscTextAttr = attr;
}

PbMiscTextAttr* PoLegend::getMiscTextAttr() const {
  CallJournal::record("PoLegend::getMiscTextAttr");
  return miscTextAttr;
}

PoItemLegend::~PoItemLegend() = default;

void PoItemLegend::init(int isDefault, const SbVec2f& newCorner1, const SbVec2f& newCorner2, int numItems,
                        const char** newNames, const SbColor* newColors) {
  CallJournal::record("PoItemLegend::init", isDefault, newCorner1, newCorner2, numItems,
                      journalArray(newNames, numItems),
                      journalArray(static_cast<const SbVec3f*>(newColors), numItems));
  corner1 = newCorner1;
  corner2 = newCorner2;
  names = copiedNames(newNames, numItems);
  colors = copied(newColors, numItems);
}

void PoItemLegend::rebuild() {
  CallJournal::record("PoItemLegend::rebuild");
  runRebuild();
}

void PoItemLegend::build() {
  CallJournal::record("PoItemLegend::build");
  builtParts.clear();
  const float top = corner2[1];
  const float step = names.empty() ? 0.0f : (corner2[1] - corner1[1]) / static_cast<float>(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    const float high = top - step * static_cast<float>(i);
    const std::string colour = i < colors.size() ? text(static_cast<const SbVec3f&>(colors[i])) : "none";
    builtParts.push_back("item " + text(SbVec2f(corner1[0], high - step)) + ".." + text(SbVec2f(corner2[0], high)) +
                         " " + colour + " " + text(names[i]));
  }
  clearDrawing();
  for (std::size_t i = 0; i < names.size(); ++i) {
    const float high = top - step * static_cast<float>(i);
    addLegendRow(SbVec2f(corner1[0], high - step), SbVec2f(corner2[0], high), i < colors.size() ? &colors[i] : nullptr,
                 names[i]);
  }
  mapThroughDomain(domainInUse());
}

// --- value legends -------------------------------------------------------------------

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoValueLegend, PoLegend, "PoValueLegend", {"valueBoxes"})
PO_GRAPH_KIT_SOURCE(PoLinearValueLegend, PoValueLegend, "PoLinearValueLegend", {})
PO_GRAPH_KIT_SOURCE(PoNonLinearValueLegend1, PoValueLegend, "PoNonLinearValueLegend1", {})
PO_GRAPH_KIT_SOURCE(PoNonLinearValueLegend2, PoValueLegend, "PoNonLinearValueLegend2", {})
PO_GRAPH_KIT_SOURCE(PoNonLinearValueLegend3, PoValueLegend, "PoNonLinearValueLegend3", {})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoAutoValueLegend, PoValueLegend, "PoAutoValueLegend", {})

PoValueLegend::PoValueLegend() : corner1(0, 0), corner2(1, 1) {}
PoValueLegend::PoValueLegend(const SbVec2f& c1, const SbVec2f& c2) : corner1(c1), corner2(c2) {}
PoValueLegend::~PoValueLegend() = default;

void PoValueLegend::setIsovaluesList(PbIsovaluesList* list) {
  CallJournal::record("PoValueLegend::setIsovaluesList", static_cast<const void*>(list));
  isovaluesList = list;
}

PbIsovaluesList* PoValueLegend::getIsovaluesList() const {
  CallJournal::record("PoValueLegend::getIsovaluesList");
  return isovaluesList;
}

void PoValueLegend::setDataMapping(PbDataMapping* mapping) {
  CallJournal::record("PoValueLegend::setDataMapping", static_cast<const void*>(mapping));
  dataMapping = mapping;
}

PbDataMapping* PoValueLegend::getDataMapping() const {
  CallJournal::record("PoValueLegend::getDataMapping");
  return dataMapping;
}

void PoValueLegend::setFormat(PbNumericDisplayFormat* newFormat) {
  CallJournal::record("PoValueLegend::setFormat", static_cast<const void*>(newFormat));
  format = newFormat;
}

PbNumericDisplayFormat* PoValueLegend::getFormat() const {
  CallJournal::record("PoValueLegend::getFormat");
  return format;
}

void PoValueLegend::rebuild() {
  CallJournal::record("PoValueLegend::rebuild");
  runRebuild();
}

void PoValueLegend::build() {
  CallJournal::record("PoValueLegend::build");
  builtParts = {"frame " + text(corner1) + ".." + text(corner2)};
  clearDrawing();
  addLine(box(corner1, corner2));
  const std::vector<float> none;
  const std::vector<float>& values = isovaluesList != nullptr ? isovaluesList->values() : none;
  const float step = values.empty() ? 0.0f : (corner2[1] - corner1[1]) / static_cast<float>(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string written = valueText(values[i], format);
    const SbColor color = dataMapping != nullptr ? dataMapping->colorOf(values[i]) : SbColor(0.5f, 0.5f, 0.5f);
    builtParts.push_back("value " + written + " " +
                         (dataMapping != nullptr ? text(static_cast<const SbVec3f&>(color)) : std::string("none")));
    const float low = corner1[1] + step * static_cast<float>(i);
    addLegendRow(SbVec2f(corner1[0], low), SbVec2f(corner2[0], low + step), &color, written);
  }
  mapThroughDomain(domainInUse());
}

PoLinearValueLegend::PoLinearValueLegend() { CallJournal::record("PoLinearValueLegend::PoLinearValueLegend"); }

PoLinearValueLegend::PoLinearValueLegend(const SbVec2f& c1, const SbVec2f& c2, ValueDistribution d)
    : PoValueLegend(c1, c2), distribution(d) {
  CallJournal::record("PoLinearValueLegend::PoLinearValueLegend", c1, c2, static_cast<int>(d));
}

PoLinearValueLegend::~PoLinearValueLegend() = default;

#define TK_NON_LINEAR_VALUE_LEGEND(className)                                                       \
  className::className() { CallJournal::record(#className "::" #className); }                     \
  className::className(const SbVec2f& c1, const SbVec2f& c2) : PoValueLegend(c1, c2) {            \
    CallJournal::record(#className "::" #className, c1, c2);                                        \
  }                                                                                                 \
  className::~className() = default;

TK_NON_LINEAR_VALUE_LEGEND(PoNonLinearValueLegend1)
TK_NON_LINEAR_VALUE_LEGEND(PoNonLinearValueLegend2)
TK_NON_LINEAR_VALUE_LEGEND(PoNonLinearValueLegend3)

PoAutoValueLegend::PoAutoValueLegend() = default;
PoAutoValueLegend::~PoAutoValueLegend() = default;
