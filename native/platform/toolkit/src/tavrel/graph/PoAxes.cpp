// The axes: single graduated axes, axis groups, the cube of axes and the
// coordinate-system triad.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoAngularAxis.h>
#include <Tavrel/PoAutoCubeAxis.h>
#include <Tavrel/PoAxis.h>
#include <Tavrel/PoCartesianAxis.h>
#include <Tavrel/PoCoordinateSystemAxis.h>
#include <Tavrel/PoGenAxis.h>
#include <Tavrel/PoGroup2Axis.h>
#include <Tavrel/PoGroup3Axis3.h>
#include <Tavrel/PoGroup4Axis.h>
#include <Tavrel/PoGroup6Axis3.h>
#include <Tavrel/PoLinearAxis.h>
#include <Tavrel/PoLogAxis.h>
#include <Tavrel/PoPolarAxis.h>
#include <Tavrel/PoPolarLinAxis.h>
#include <Tavrel/PoPolarLogAxis.h>
#include <Tavrel/PoTimeAxis.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

// --- types and catalogs --------------------------------------------------------

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoAxis, PoBase, "PoAxis", {"axisLine", "graduations", "title"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoCartesianAxis, PoAxis, "PoCartesianAxis", {"cartesianParts"})
PO_GRAPH_KIT_SOURCE(PoLinearAxis, PoCartesianAxis, "PoLinearAxis", {"linearParts"})
PO_GRAPH_KIT_SOURCE(PoLogAxis, PoCartesianAxis, "PoLogAxis", {"logParts"})
PO_GRAPH_KIT_SOURCE(PoGenAxis, PoCartesianAxis, "PoGenAxis", {"genParts"})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoPolarAxis, PoAxis, "PoPolarAxis", {"polarParts"})
PO_GRAPH_KIT_SOURCE(PoPolarLinAxis, PoPolarAxis, "PoPolarLinAxis", {"polarLinParts"})
PO_GRAPH_KIT_SOURCE(PoPolarLogAxis, PoPolarAxis, "PoPolarLogAxis", {"polarLogParts"})
PO_GRAPH_KIT_SOURCE(PoAngularAxis, PoAxis, "PoAngularAxis", {"circle"})
PO_GRAPH_KIT_SOURCE(PoTimeAxis, PoAxis, "PoTimeAxis", {"timeParts"})
PO_GRAPH_KIT_SOURCE(PoAutoCubeAxis, PoBase, "PoAutoCubeAxis", {"cubeAxes"})
PO_GRAPH_KIT_SOURCE(PoGroup2Axis, PoBaseAxis, "PoGroup2Axis", {"xAxis", "yAxis"})
PO_GRAPH_KIT_SOURCE(PoGroup3Axis3, PoBaseAxis, "PoGroup3Axis3", {"xAxis", "yAxis", "zAxis"})
PO_GRAPH_KIT_SOURCE(PoGroup4Axis, PoBaseAxis, "PoGroup4Axis", {"xAxis", "yAxis", "x2Axis", "y2Axis"})
PO_GRAPH_KIT_SOURCE(PoGroup6Axis3, PoBaseAxis, "PoGroup6Axis3", {"xAxes", "yAxes", "zAxes"})
PO_GRAPH_KIT_SOURCE(PoCoordinateSystemAxis, PoQuorvex, "PoCoordinateSystemAxis", {"triad"})

namespace {
const unsigned kMaxGraduations = 65535;
// Relative tolerance on the end values.
const double kTolerance = 1e-6;

SbString textOrEmpty(const char* text) { return SbString(text == nullptr ? "" : text); }

// Calls f(k) for each whole number k from first to last (whole numbers themselves), none when
// there would be more than kMaxGraduations of them or the bounds are not finite. The loop counts
// with an integer: far from 0 (past 2^53) adding 1 to a double leaves it unchanged, so a loop
// stepping a double would never end. A k that rounds to the one before it is skipped.
template <class F>
void forEachWhole(double first, double last, F&& f) {
  if (!(last - first < kMaxGraduations)) return;
  const unsigned count = last < first ? 0u : static_cast<unsigned>(last - first) + 1u;
  double previous = 0.0;
  for (unsigned i = 0; i < count; ++i) {
    const double k = first + static_cast<double>(i);
    if (i > 0 && k == previous) continue;
    previous = k;
    f(k);
  }
}

// The digits 1 to 9 of a decade list, in value order; {1} when none.
std::vector<unsigned short> digitsOf(const std::vector<unsigned short>& list) {
  std::vector<unsigned short> digits;
  for (unsigned short d : list)
    if (d >= 1 && d <= 9) digits.push_back(d);
  std::sort(digits.begin(), digits.end());
  digits.erase(std::unique(digits.begin(), digits.end()), digits.end());
  if (digits.empty()) digits.push_back(1);
  return digits;
}

std::vector<unsigned short> listOf(const unsigned short* decades, short count) {
  if (decades == nullptr || count < 1) return {};
  return std::vector<unsigned short>(decades, decades + count);
}

// A log-graduation label of d x 10^k.
SbString logLabel(unsigned short digit, long k) {
  std::string text;
  if (k >= -3 && k <= 4) {
    if (k >= 0) {
      text = std::to_string(digit) + std::string(static_cast<std::size_t>(k), '0');
    } else {
      text = "0." + std::string(static_cast<std::size_t>(-k - 1), '0') + std::to_string(digit);
    }
  } else {
    text = (digit == 1 ? std::string() : std::to_string(digit) + "x") + "10^" + std::to_string(k);
  }
  return SbString(text);
}

void writeLogGrad(const std::vector<unsigned short>& list, bool automatic, short& count, unsigned short* decades) {
  if (automatic) {
    count = 1;
    if (decades != nullptr) decades[0] = 1;
    return;
  }
  count = static_cast<short>(list.size());
  if (decades != nullptr) std::copy(list.begin(), list.end(), decades);
}

// Keeps the corners, the axis types and the titles of a group of axes.
template <class Group, class Vec, std::size_t N>
void keepGroup(Group& group, const Vec& start, const Vec& end, const typename Group::AxisType (&types)[N],
               const char* const (&titles)[N]) {
  group.start = start;
  group.end = end;
  for (std::size_t i = 0; i < N; ++i) {
    group.types[i] = types[i];
    group.titles[i] = textOrEmpty(titles[i]);
  }
}

SbString fontOf(const PbMiscTextAttr* attr) { return attr == nullptr ? SbString("") : attr->getFontName(); }
}  // namespace

// --- PoAxis --------------------------------------------------------------------------------

PoAxis::PoAxis() = default;
PoAxis::~PoAxis() = default;

void PoAxis::setMiscTextAttr(PbMiscTextAttr* attr) {
  CallJournal::record("PoAxis::setMiscTextAttr", static_cast<const void*>(attr));
  textAttr = attr;
  changed();
}

PbMiscTextAttr* PoAxis::getMiscTextAttr() const {
  CallJournal::record("PoAxis::getMiscTextAttr");
  return textAttr;
}

PoAxis::AxisReverse PoAxis::getReverseFlag() const {
  CallJournal::record("PoAxis::getReverseFlag");
  double start, end;
  range(start, end);
  return end < start ? AXISREVERSE : AXISNOREVERSE;
}

void PoAxis::getGrad(Visibility& visibility, GradPosition& position, TextPath& path, SbString& labels, float& first,
                     float& last, int& current, SbString& fontName) const {
  CallJournal::record("PoAxis::getGrad");
  visibility = VISIBILITYON;
  position = GRADBELOW;
  path = PATHRIGHT;
  std::string joined;
  for (std::size_t i = 0; i < grads.size(); ++i) {
    if (i) joined += '\n';
    joined += grads[i].label.getString();
  }
  labels = SbString(joined);
  first = grads.empty() ? 0.0f : static_cast<float>(grads.front().value);
  last = grads.empty() ? 0.0f : static_cast<float>(grads.back().value);
  current = isBuilt() && !isModified() ? 1 : 0;
  fontName = fontOf(textAttr);
}

void PoAxis::getTitle(Visibility& visibility, TitlePosition& position, TextPath& path, SbString& text, float& start,
                      float& end, SbString& fontName) const {
  CallJournal::record("PoAxis::getTitle");
  visibility = title.getLength() > 0 ? VISIBILITYON : VISIBILITYOFF;
  position = TITLEMIDDLE;
  path = PATHRIGHT;
  text = title;
  double s, e;
  range(s, e);
  start = static_cast<float>(s);
  end = static_cast<float>(e);
  fontName = fontOf(textAttr);
}

void PoAxis::getTick(Visibility& visibility, TickPosition& position, float& mainLength, float& subLength,
                     TickSubDef& subDef, unsigned short& mainTicks, unsigned short& subTickCount,
                     unsigned short& firstTick) const {
  CallJournal::record("PoAxis::getTick");
  visibility = VISIBILITYON;
  position = TICKGRADSIDE;
  mainLength = 0.04f;
  subLength = 0.02f;
  subDef = NUMSUBTICK;
  mainTicks = static_cast<unsigned short>(grads.size());
  subTickCount = subTicks();
  firstTick = 0;
}

void PoAxis::getMargin(MarginType& type, float& start, float& end) const {
  CallJournal::record("PoAxis::getMargin");
  type = RELMARGIN;
  start = 0.1f;
  end = 0.1f;
}

void PoAxis::getGrid(Visibility& visibility, float& gradSide, float& otherSide) const {
  CallJournal::record("PoAxis::getGrid");
  visibility = VISIBILITYOFF;
  gradSide = 0.0f;
  otherSide = 0.0f;
}

void PoAxis::getArrow(Visibility& visibility, float& length, float& height) const {
  CallJournal::record("PoAxis::getArrow");
  visibility = VISIBILITYOFF;
  length = 0.03f;
  height = 0.015f;
}

void PoAxis::rebuild() {
  CallJournal::record("PoAxis::rebuild");
  runRebuild();
}

void PoAxis::build() {
  CallJournal::record("PoAxis::build");
  std::vector<Graduation> made;
  makeGraduations(made);
  if (made.size() > kMaxGraduations) made.clear();
  grads.swap(made);
  drawAxis();
}

void PoAxis::drawAxis() {
  using P = PoDrawing::Primitive;
  clearDrawing();
  addLine(axisLine());
  const double tick = 0.04 * axisLength();
  for (const Graduation& g : grads) {
    const SbVec3f at = pointOf(g.value);
    const SbVec3f side = gradSide(g.value);
    addLine({at, at + side * static_cast<float>(tick)});
    // Written away from the axis, as the tick points.
    P::Anchor anchor = P::MIDDLE;
    P::Baseline baseline = side[1] < 0 ? P::HANGING : P::BASELINE;
    if (std::fabs(side[0]) > std::fabs(side[1])) {
      anchor = side[0] < 0 ? P::END : P::START;
      baseline = P::CENTRAL;
    }
    addText(at + side * static_cast<float>(1.5 * tick), g.label.getString(), anchor, baseline);
  }
  mapThroughDomain(domainInUse());
}

double PoAxis::fraction(double value) const {
  double start, end;
  range(start, end);
  if (logarithmic()) {
    value = std::log10(value), start = std::log10(start), end = std::log10(end);
  }
  const double f = (value - start) / (end - start);
  return std::isfinite(f) ? f : 0.0;
}

SbString PoAxis::label(double value, const PbNumericDisplayFormat* format) {
  if (value == 0.0) value = 0.0;  // no negative zero
  if (format != nullptr) return format->format(static_cast<float>(value));
  char text[64];
  std::snprintf(text, sizeof text, "%g", value);
  return SbString(text);
}

double PoAxis::automaticStep(double start, double end) {
  const double span = std::fabs(end - start);
  if (!(span > 0.0) || !std::isfinite(span)) return 1.0;
  double power = std::pow(10.0, std::floor(std::log10(span / 10.0)));
  if (!(power > 0.0) || !std::isfinite(power)) return 1.0;
  // power is at most a tenth of the span, and more than a hundredth: two decades at most.
  for (int decade = 0; decade < 3; ++decade, power *= 10.0) {
    for (double m : {1.0, 2.0, 5.0})
      if (m * power >= span / 10.0 * (1 - kTolerance)) return m * power;
  }
  return power;
}

void PoAxis::linearGraduations(double start, double end, double step, const PbNumericDisplayFormat* format,
                               std::vector<Graduation>& out) {
  if (!std::isfinite(start) || !std::isfinite(end)) return;
  if (!(step > 0.0)) step = automaticStep(start, end);
  const double lo = std::min(start, end), hi = std::max(start, end);
  const double first = std::ceil(lo / step - kTolerance), last = std::floor(hi / step + kTolerance);
  forEachWhole(first, last, [&](double k) {
    const double value = k * step + 0.0;  // no negative zero
    out.push_back(Graduation{value, label(value, format)});
  });
  if (end < start) std::reverse(out.begin(), out.end());
}

void PoAxis::logGraduations(double start, double end, const std::vector<unsigned short>& digits,
                            std::vector<Graduation>& out) {
  if (!std::isfinite(start) || !std::isfinite(end)) return;
  const double lo = std::min(start, end), hi = std::max(start, end);
  const double firstK = std::floor(lo), lastK = std::floor(hi + kTolerance);
  if (!((lastK - firstK + 1) * static_cast<double>(digits.size()) <= kMaxGraduations)) return;
  forEachWhole(firstK, lastK, [&](double k) {
    for (unsigned short d : digits) {
      const double exponent = k + std::log10(static_cast<double>(d));
      if (exponent < lo - kTolerance || exponent > hi + kTolerance) continue;
      out.push_back(Graduation{std::pow(10.0, exponent), logLabel(d, static_cast<long>(k))});
    }
  });
  if (end < start) std::reverse(out.begin(), out.end());
}

// --- cartesian axes -------------------------------------------------------------------

PoCartesianAxis::PoCartesianAxis() = default;
PoCartesianAxis::~PoCartesianAxis() = default;

double PoCartesianAxis::startCoordinate() const {
  switch (type) {
    case YX:
    case YZ: return start[1];
    case ZX:
    case ZY: return start[2];
    default: return start[0];
  }
}

namespace {
// The index of the coordinate along a cartesian type, and of its second direction.
int along(PoCartesianAxis::Type type) {
  switch (type) {
    case PoCartesianAxis::YX:
    case PoCartesianAxis::YZ: return 1;
    case PoCartesianAxis::ZX:
    case PoCartesianAxis::ZY: return 2;
    default: return 0;
  }
}
int across(PoCartesianAxis::Type type) {
  switch (type) {
    case PoCartesianAxis::XY:
    case PoCartesianAxis::ZY: return 1;
    case PoCartesianAxis::YX:
    case PoCartesianAxis::ZX: return 0;
    default: return 2;
  }
}
}  // namespace

std::vector<SbVec3f> PoCartesianAxis::axisLine() const {
  SbVec3f to = start;
  to[along(type)] = end;
  return {start, to};
}

SbVec3f PoCartesianAxis::pointOf(double value) const {
  SbVec3f at = start;
  const double from = startCoordinate();
  at[along(type)] = static_cast<float>(from + fraction(value) * (end - from));
  return at;
}

SbVec3f PoCartesianAxis::gradSide(double) const {
  SbVec3f side(0, 0, 0);
  side[across(type)] = -1.0f;
  return side;
}

double PoCartesianAxis::axisLength() const { return std::fabs(end - startCoordinate()); }

PoLinearAxis::PoLinearAxis() { CallJournal::record("PoLinearAxis::PoLinearAxis"); }
PoLinearAxis::~PoLinearAxis() = default;

void PoLinearAxis::init(const SbVec3f& s, float e, Type t, float g1, float g2, float st) {
  CallJournal::record("PoLinearAxis::init", s, e, static_cast<int>(t), g1, g2, st);
  start = s;
  end = e;
  type = t;
  gradStart = g1;
  gradEnd = g2;
  step = st;
}

void PoLinearAxis::range(double& startValue, double& endValue) const {
  if (gradStart == gradEnd) {
    startValue = startCoordinate();
    endValue = end;
  } else {
    startValue = gradStart;
    endValue = gradEnd;
  }
}

void PoLinearAxis::setFormat(PbNumericDisplayFormat* f) {
  CallJournal::record("PoLinearAxis::setFormat", static_cast<const void*>(f));
  format = f;
  changed();
}

PbNumericDisplayFormat* PoLinearAxis::getFormat() const {
  CallJournal::record("PoLinearAxis::getFormat");
  return format;
}

float PoLinearAxis::getStep() const {
  CallJournal::record("PoLinearAxis::getStep");
  if (step > 0.0f) return step;
  double s, e;
  range(s, e);
  return static_cast<float>(automaticStep(s, e));
}

void PoLinearAxis::getMultFactor(MultFactorPosition& position, float& factor) const {
  CallJournal::record("PoLinearAxis::getMultFactor");
  position = MULTFACTOREND;
  factor = 1.0f;
}

void PoLinearAxis::makeGraduations(std::vector<Graduation>& out) const {
  double s, e;
  range(s, e);
  linearGraduations(s, e, step, format, out);
}

PoLogAxis::PoLogAxis() {
  CallJournal::record("PoLogAxis::PoLogAxis");
  init(1, SbVec3f(0, 0, 0), 1.0f, XY, DECADELISTAUTO, nullptr, 0, 0.0f, 0.0f);
}
PoLogAxis::~PoLogAxis() = default;

void PoLogAxis::init(int flag, const SbVec3f& s, float e, Type t, DecadeListDef def, const unsigned short* decades,
                     short count, float x1, float x2) {
  if (flag == 0)
    CallJournal::record("PoLogAxis::init", flag, s, e, static_cast<int>(t), static_cast<int>(def),
                        journalArray(decades, count < 0 ? 0 : count), count, x1, x2);
  start = s;
  end = e;
  type = t;
  decadeListDef = def;
  decadeList = listOf(decades, count);
  expStart = x1;
  expEnd = x2;
}

void PoLogAxis::range(double& startValue, double& endValue) const {
  if (expStart == expEnd) {
    startValue = std::pow(10.0, startCoordinate());
    endValue = std::pow(10.0, static_cast<double>(end));
  } else {
    startValue = std::pow(10.0, static_cast<double>(expStart));
    endValue = std::pow(10.0, static_cast<double>(expEnd));
  }
}

void PoLogAxis::getMultFactor(MultFactorPosition& position, float& factor) const {
  CallJournal::record("PoLogAxis::getMultFactor");
  position = MULTFACTOREND;
  factor = 1.0f;
}

void PoLogAxis::getLogGrad(short& count, unsigned short* decades, TenPowGradRep& tenPowerRep, DecadeRep& decadeRep,
                           SbString& fontName, float& span) const {
  CallJournal::record("PoLogAxis::getLogGrad");
  writeLogGrad(decadeList, decadeListDef == DECADELISTAUTO, count, decades);
  tenPowerRep = TENPOWERAUTO;
  decadeRep = DECADEAUTO;
  fontName = fontOf(textAttributes());
  double s, e;
  range(s, e);
  span = static_cast<float>(std::fabs(std::log10(e) - std::log10(s)));
}

void PoLogAxis::makeGraduations(std::vector<Graduation>& out) const {
  double s, e;
  range(s, e);
  logGraduations(std::log10(s), std::log10(e),
                 decadeListDef == DECADELISTAUTO ? std::vector<unsigned short>{1} : digitsOf(decadeList), out);
}

PoGenAxis::PoGenAxis() {
  CallJournal::record("PoGenAxis::PoGenAxis");
  init(1, SbVec3f(0, 0, 0), 1.0f, XY, nullptr, 0);
}
PoGenAxis::~PoGenAxis() = default;

void PoGenAxis::init(int flag, const SbVec3f& s, float e, Type t, const char** grads, short count) {
  if (flag == 0)
    CallJournal::record("PoGenAxis::init", flag, s, e, static_cast<int>(t),
                        journalArray(grads, grads == nullptr || count < 0 ? 0 : count), count);
  start = s;
  end = e;
  type = t;
  labels.clear();
  if (grads != nullptr)
    for (short i = 0; i < count; ++i) labels.push_back(textOrEmpty(grads[i]));
}

void PoGenAxis::range(double& startValue, double& endValue) const {
  startValue = startCoordinate();
  endValue = end;
}

void PoGenAxis::makeGraduations(std::vector<Graduation>& out) const {
  double s, e;
  range(s, e);
  const std::size_t n = labels.size();
  for (std::size_t i = 0; i < n; ++i) {
    const double value = n == 1 ? s : s + (e - s) * static_cast<double>(i) / static_cast<double>(n - 1);
    out.push_back(Graduation{value, labels[i]});
  }
}

// --- polar axes -----------------------------------------------------------------------

PoPolarAxis::PoPolarAxis() = default;
PoPolarAxis::~PoPolarAxis() = default;

double PoPolarAxis::length() const { return std::hypot(static_cast<double>(x1) - x0, static_cast<double>(y1) - y0); }

std::vector<SbVec3f> PoPolarAxis::axisLine() const { return {SbVec3f(x0, y0, 0), SbVec3f(x1, y1, 0)}; }

SbVec3f PoPolarAxis::pointOf(double value) const {
  const float f = static_cast<float>(fraction(value));
  return SbVec3f(x0 + f * (x1 - x0), y0 + f * (y1 - y0), 0);
}

SbVec3f PoPolarAxis::gradSide(double) const {
  const double l = length();
  if (!(l > 0.0)) return SbVec3f(0, -1, 0);
  return SbVec3f(static_cast<float>((y1 - y0) / l), static_cast<float>((x0 - x1) / l), 0);
}

double PoPolarAxis::axisLength() const { return length(); }

void PoPolarAxis::getMultFactor(MultFactorPosition& position, float& factor) const {
  CallJournal::record("PoPolarAxis::getMultFactor");
  position = MULTFACTOREND;
  factor = 1.0f;
}

PoPolarLinAxis::PoPolarLinAxis() { CallJournal::record("PoPolarLinAxis::PoPolarLinAxis"); }

PoPolarLinAxis::PoPolarLinAxis(float a, float b, float c, float d, float st) : step(st) {
  CallJournal::record("PoPolarLinAxis::PoPolarLinAxis", a, b, c, d, st);
  x0 = a;
  y0 = b;
  x1 = c;
  y1 = d;
}

PoPolarLinAxis::~PoPolarLinAxis() = default;

void PoPolarLinAxis::setFormat(PbNumericDisplayFormat* f) {
  CallJournal::record("PoPolarLinAxis::setFormat", static_cast<const void*>(f));
  format = f;
  changed();
}

PbNumericDisplayFormat* PoPolarLinAxis::getFormat() const {
  CallJournal::record("PoPolarLinAxis::getFormat");
  return format;
}

float PoPolarLinAxis::getStep() const {
  CallJournal::record("PoPolarLinAxis::getStep");
  return step > 0.0f ? step : static_cast<float>(automaticStep(0.0, length()));
}

void PoPolarLinAxis::range(double& startValue, double& endValue) const {
  startValue = 0.0;
  endValue = length();
}

void PoPolarLinAxis::makeGraduations(std::vector<Graduation>& out) const {
  linearGraduations(0.0, length(), step, format, out);
}

PoPolarLogAxis::PoPolarLogAxis() { CallJournal::record("PoPolarLogAxis::PoPolarLogAxis"); }

PoPolarLogAxis::PoPolarLogAxis(float a, float b, float c, float d, DecadeListDef def, const unsigned short* decades,
                               short count)
    : decadeListDef(def), decadeList(listOf(decades, count)) {
  CallJournal::record("PoPolarLogAxis::PoPolarLogAxis", a, b, c, d, static_cast<int>(def),
                      journalArray(decades, count < 0 ? 0 : count), count);
  x0 = a;
  y0 = b;
  x1 = c;
  y1 = d;
}

PoPolarLogAxis::~PoPolarLogAxis() = default;

void PoPolarLogAxis::getLogGrad(short& count, unsigned short* decades, TenPowGradRep& tenPowerRep,
                                DecadeRep& decadeRep, SbString& fontName, float& span) const {
  CallJournal::record("PoPolarLogAxis::getLogGrad");
  writeLogGrad(decadeList, decadeListDef == DECADELISTAUTO, count, decades);
  tenPowerRep = TENPOWERAUTO;
  decadeRep = DECADEAUTO;
  fontName = fontOf(textAttributes());
  span = static_cast<float>(length());
}

void PoPolarLogAxis::range(double& startValue, double& endValue) const {
  startValue = 1.0;
  endValue = std::pow(10.0, length());
}

void PoPolarLogAxis::makeGraduations(std::vector<Graduation>& out) const {
  logGraduations(0.0, length(),
                 decadeListDef == DECADELISTAUTO ? std::vector<unsigned short>{1} : digitsOf(decadeList), out);
}

// --- angular axis ---------------------------------------------------------------------

PoAngularAxis::PoAngularAxis() { CallJournal::record("PoAngularAxis::PoAngularAxis"); }
PoAngularAxis::~PoAngularAxis() = default;

void PoAngularAxis::init(float cx, float cy, float r, float first, float st) {
  CallJournal::record("PoAngularAxis::init", cx, cy, r, first, st);
  centreX = cx;
  centreY = cy;
  radius = r;
  firstAngle = first;
  angleStep = st;
}

float PoAngularAxis::getAngleStep() const {
  CallJournal::record("PoAngularAxis::getAngleStep");
  return angleStep > 0.0f && angleStep <= 360.0f ? angleStep : 30.0f;
}

void PoAngularAxis::range(double& startValue, double& endValue) const {
  startValue = firstAngle;
  endValue = static_cast<double>(firstAngle) + 360.0;
}

std::vector<SbVec3f> PoAngularAxis::axisLine() const {
  std::vector<SbVec3f> circle;
  for (int k = 0; k <= 64; ++k) circle.push_back(pointOf(360.0 * k / 64));
  return circle;
}

SbVec3f PoAngularAxis::pointOf(double degrees) const {
  const SbVec3f side = gradSide(degrees);
  return SbVec3f(centreX, centreY, 0) + side * radius;
}

SbVec3f PoAngularAxis::gradSide(double degrees) const {
  const double a = degrees * 3.14159265358979323846 / 180.0;
  return SbVec3f(static_cast<float>(std::cos(a)), static_cast<float>(std::sin(a)), 0);
}

double PoAngularAxis::axisLength() const { return std::fabs(radius); }

void PoAngularAxis::makeGraduations(std::vector<Graduation>& out) const {
  if (!std::isfinite(firstAngle)) return;
  const double st = angleStep > 0.0f && angleStep <= 360.0f ? angleStep : 30.0;
  for (unsigned k = 0; k <= kMaxGraduations && k * st < 360.0 * (1 - kTolerance); ++k) {
    const double angle = firstAngle + k * st;
    double shown = std::fmod(angle, 360.0);
    if (shown < 0) shown += 360.0;
    out.push_back(Graduation{angle, label(shown, nullptr)});
  }
}

// --- time axis ------------------------------------------------------------------------

PoTimeAxis::PoTimeAxis() {
  CallJournal::record("PoTimeAxis::PoTimeAxis");
  init(1, "2000-01-01", "2000-01-02", 0.0f, X);
}
PoTimeAxis::~PoTimeAxis() = default;

void PoTimeAxis::init(int flag, const char* d1, const char* d2, float pos, Type t) {
  if (flag == 0) CallJournal::record("PoTimeAxis::init", flag, d1, d2, pos, static_cast<int>(t));
  date1 = textOrEmpty(d1);
  date2 = textOrEmpty(d2);
  position = pos;
  type = t;
}

void PoTimeAxis::setDateFormatMapping(PbDateFormatMapping* m) {
  CallJournal::record("PoTimeAxis::setDateFormatMapping", static_cast<const void*>(m));
  mapping = m;
  changed();
}

PbDateFormatMapping* PoTimeAxis::getDateFormatMapping() const {
  CallJournal::record("PoTimeAxis::getDateFormatMapping");
  return mapping;
}

double PoTimeAxis::coordinate(double seconds) const {
  if (mapping != nullptr) return mapping->coordinateOfSeconds(seconds);
  double origin = 0.0;
  PbDateFormatMapping::readDate("2000-01-01", origin);
  return (seconds - origin) / 86400.0;
}

void PoTimeAxis::range(double& startValue, double& endValue) const {
  double s1 = 0.0, s2 = 0.0;
  if (!PbDateFormatMapping::readDate(date1.getString(), s1) || !PbDateFormatMapping::readDate(date2.getString(), s2)) {
    startValue = endValue = 0.0;
    return;
  }
  startValue = coordinate(s1);
  endValue = coordinate(s2);
}

SbVec3f PoTimeAxis::pointOf(double value) const {
  return type == Y ? SbVec3f(position, static_cast<float>(value), 0) : SbVec3f(static_cast<float>(value), position, 0);
}

std::vector<SbVec3f> PoTimeAxis::axisLine() const {
  double s, e;
  range(s, e);
  return {pointOf(s), pointOf(e)};
}

SbVec3f PoTimeAxis::gradSide(double) const { return type == Y ? SbVec3f(-1, 0, 0) : SbVec3f(0, -1, 0); }

double PoTimeAxis::axisLength() const {
  double s, e;
  range(s, e);
  return std::fabs(e - s);
}

void PoTimeAxis::makeGraduations(std::vector<Graduation>& out) const {
  double s1, s2;
  if (!PbDateFormatMapping::readDate(date1.getString(), s1) || !PbDateFormatMapping::readDate(date2.getString(), s2))
    return;
  const double lo = std::min(s1, s2), hi = std::max(s1, s2);
  const double unit = hi - lo >= 86400.0 ? 86400.0 : 3600.0;
  const SbString format = mapping != nullptr ? mapping->getFormat() : SbString("%Y-%m-%d");
  const double first = std::ceil(lo / unit), last = std::floor(hi / unit);
  forEachWhole(first, last, [&](double k) {
    const double seconds = k * unit;
    out.push_back(Graduation{coordinate(seconds), PbDateFormatMapping::writeDate(format, seconds)});
  });
  if (s2 < s1) std::reverse(out.begin(), out.end());
}

// --- groups, cube and triad -----------------------------------------------------------------

#define PO_AXIS_GROUP_BUILD(className)                 \
  void className::rebuild() {                          \
    CallJournal::record(#className "::rebuild");      \
    runRebuild();                                      \
  }                                                    \
  void className::build() { CallJournal::record(#className "::build"); }

PO_AXIS_GROUP_BUILD(PoGroup2Axis)
PO_AXIS_GROUP_BUILD(PoGroup4Axis)
PO_AXIS_GROUP_BUILD(PoGroup3Axis3)
PO_AXIS_GROUP_BUILD(PoGroup6Axis3)
PO_AXIS_GROUP_BUILD(PoAutoCubeAxis)
PO_AXIS_GROUP_BUILD(PoCoordinateSystemAxis)

PoGroup2Axis::PoGroup2Axis() : start(0, 0), end(1, 1) { CallJournal::record("PoGroup2Axis::PoGroup2Axis"); }
PoGroup2Axis::~PoGroup2Axis() = default;

void PoGroup2Axis::init(const SbVec2f& s, const SbVec2f& e, AxisType xType, AxisType yType, const char* xTitle,
                        const char* yTitle) {
  CallJournal::record("PoGroup2Axis::init", s, e, static_cast<int>(xType), static_cast<int>(yType), xTitle, yTitle);
  keepGroup(*this, s, e, {xType, yType}, {xTitle, yTitle});
}

PoGroup4Axis::PoGroup4Axis() : start(0, 0), end(1, 1) { CallJournal::record("PoGroup4Axis::PoGroup4Axis"); }
PoGroup4Axis::~PoGroup4Axis() = default;

void PoGroup4Axis::init(const SbVec2f& s, const SbVec2f& e, AxisType xType, AxisType yType, const char* xTitle,
                        const char* yTitle) {
  CallJournal::record("PoGroup4Axis::init", s, e, static_cast<int>(xType), static_cast<int>(yType), xTitle, yTitle);
  keepGroup(*this, s, e, {xType, yType}, {xTitle, yTitle});
}

PoGroup3Axis3::PoGroup3Axis3() : start(0, 0, 0), end(1, 1, 1) { CallJournal::record("PoGroup3Axis3::PoGroup3Axis3"); }
PoGroup3Axis3::~PoGroup3Axis3() = default;

void PoGroup3Axis3::init(const SbVec3f& s, const SbVec3f& e, AxisType xType, AxisType yType, AxisType zType,
                         AxisName n, const char* xTitle, const char* yTitle, const char* zTitle) {
  CallJournal::record("PoGroup3Axis3::init", s, e, static_cast<int>(xType), static_cast<int>(yType),
                      static_cast<int>(zType), static_cast<int>(n), xTitle, yTitle, zTitle);
  keepGroup(*this, s, e, {xType, yType, zType}, {xTitle, yTitle, zTitle});
  name = n;
}

PoGroup6Axis3::PoGroup6Axis3() : start(0, 0, 0), end(1, 1, 1) { CallJournal::record("PoGroup6Axis3::PoGroup6Axis3"); }
PoGroup6Axis3::~PoGroup6Axis3() = default;

void PoGroup6Axis3::init(const SbVec3f& s, const SbVec3f& e, AxisType xType, AxisType yType, AxisType zType,
                         const char* xTitle, const char* yTitle, const char* zTitle) {
  CallJournal::record("PoGroup6Axis3::init", s, e, static_cast<int>(xType), static_cast<int>(yType),
                      static_cast<int>(zType), xTitle, yTitle, zTitle);
  keepGroup(*this, s, e, {xType, yType, zType}, {xTitle, yTitle, zTitle});
}

PoAutoCubeAxis::PoAutoCubeAxis() : start(0, 0, 0), end(1, 1, 1) {
  CallJournal::record("PoAutoCubeAxis::PoAutoCubeAxis");
}

PoAutoCubeAxis::PoAutoCubeAxis(const SbVec3f& s, const SbVec3f& e, AxisType xType, AxisType yType, AxisType zType,
                               const char* xTitle, const char* yTitle, const char* zTitle)
    : start(s), end(e), types{xType, yType, zType}, titles{textOrEmpty(xTitle), textOrEmpty(yTitle), textOrEmpty(zTitle)} {
  CallJournal::record("PoAutoCubeAxis::PoAutoCubeAxis", s, e, static_cast<int>(xType), static_cast<int>(yType),
                      static_cast<int>(zType), xTitle, yTitle, zTitle);
}

PoAutoCubeAxis::~PoAutoCubeAxis() = default;

void PoAutoCubeAxis::GLRender(SoGLRenderAction* action) {
  CallJournal::record("PoAutoCubeAxis::GLRender", static_cast<const void*>(action));
  PoBase::GLRender(action);
}

PoCoordinateSystemAxis::PoCoordinateSystemAxis() {
  CallJournal::record("PoCoordinateSystemAxis::PoCoordinateSystemAxis");
  init(1, SbVec3f(0, 0, 0), SbVec3f(1, 1, 1), "X", "Y", "Z", 0.1f, 0.05f);
}
PoCoordinateSystemAxis::~PoCoordinateSystemAxis() = default;

void PoCoordinateSystemAxis::init(int flag, const SbVec3f& o, const SbVec3f& e, const char* xTitle,
                                  const char* yTitle, const char* zTitle, float g, float a) {
  if (flag == 0)
    CallJournal::record("PoCoordinateSystemAxis::init", flag, o, e, xTitle, yTitle, zTitle, g, a);
  origin = o;
  end = e;
  titles[0] = textOrEmpty(xTitle);
  titles[1] = textOrEmpty(yTitle);
  titles[2] = textOrEmpty(zTitle);
  gradDistance = g;
  arrowLength = a;
}
