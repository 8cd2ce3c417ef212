// The pie charts and the pie-chart representation.

#include <Corvel/CallJournal.h>
#include <Corvel/SoPath.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PoPieChart2D.h>
#include <Tavrel/PoPieChart3D.h>
#include <Tavrel/PoPieChartRep.h>

#include <Corvel/SoAction.h>

#include <cmath>
#include <utility>

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoPieChart, PoChart, "PoPieChart", {"slices", "annotations"})
PO_GRAPH_KIT_SOURCE(PoPieChart2D, PoPieChart, "PoPieChart2D", {})
PO_GRAPH_KIT_SOURCE(PoPieChart3D, PoPieChart, "PoPieChart3D", {"sides"})
PO_GRAPH_KIT_SOURCE(PoPieChartRep, PoChart, "PoPieChartRep", {"slices"})

namespace {
constexpr double kTwoPi = 6.283185307179586;

// Start angles and sweeps of the slices from their values.
void layOut(std::vector<PoPieChart::Slice>& slices) {
  double total = 0.0;
  for (const PoPieChart::Slice& s : slices) total += s.value > 0.0f ? s.value : 0.0;
  double angle = 0.0;
  for (PoPieChart::Slice& s : slices) {
    const double sweep = total > 0.0 && s.value > 0.0f ? kTwoPi * s.value / total : 0.0;
    s.startAngle = static_cast<float>(angle);
    s.sweep = static_cast<float>(sweep);
    angle += sweep;
  }
}

// The slice's centre once translated along the middle of its span.
SbVec3f sliceCenter(const SbVec3f& center, const PoPieChart::Slice& s) {
  const double middle = s.startAngle + s.sweep / 2.0;
  return center + SbVec3f(static_cast<float>(s.translation * std::cos(middle)),
                          static_cast<float>(s.translation * std::sin(middle)), 0.0f);
}

// The slice under the path's picked point, for a path through node.
int pickSlice(const SoNode* node, const std::vector<PoPieChart::Slice>& slices, const SbVec3f& center, float radius,
         const SoPath* path, int& slice) {
  if (path == nullptr || !path->containsNode(node)) return 0;
  const SbVec3f& p = path->getPickedPoint();
  for (std::size_t i = 0; i < slices.size(); ++i) {
    const PoPieChart::Slice& s = slices[i];
    if (s.sweep <= 0.0f) continue;
    const SbVec3f c = sliceCenter(center, s);
    const double dx = p[0] - c[0];
    const double dy = p[1] - c[1];
    if (std::sqrt(dx * dx + dy * dy) > radius) continue;
    double angle = std::atan2(dy, dx);
    if (angle < 0.0) angle += kTwoPi;
    if (angle >= s.startAngle && angle < static_cast<double>(s.startAngle) + s.sweep) {
      slice = static_cast<int>(i);
      return 1;
    }
  }
  return 0;
}

void translate(std::vector<PoPieChart::Slice>& slices, int slice, float distance) {
  if (slice >= 0 && static_cast<std::size_t>(slice) < slices.size()) {
    slices[static_cast<std::size_t>(slice)].translation = distance;
  }
}

float translation(const std::vector<PoPieChart::Slice>& slices, int slice) {
  if (slice < 0 || static_cast<std::size_t>(slice) >= slices.size()) return 0.0f;
  return slices[static_cast<std::size_t>(slice)].translation;
}
}  // namespace

// --- PoPieChart ------------------------------------------------------------------------

PoPieChart::PoPieChart() = default;
PoPieChart::~PoPieChart() = default;

void PoPieChart::setSlices(const SbVec3f& newCenter, float newRadius, short count, const char** names,
                           const float* values, int numColors, const SbColor* colors) {
  center = newCenter;
  radius = newRadius;
  numSlices = count;
  slices.clear();
  slices.reserve(count > 0 ? static_cast<std::size_t>(count) : 0);
  for (int i = 0; i < count; ++i) {
    Slice s{};
    s.name = names != nullptr && names[i] != nullptr ? names[i] : "";
    s.value = values != nullptr ? values[i] : 0.0f;
    s.color = colors != nullptr && numColors > 0 ? colors[i % numColors] : SbColor(1, 1, 1);
    slices.push_back(std::move(s));
  }
  layOut(slices);
}

void PoPieChart::setMiscTextAttr(PbMiscTextAttr* attr) {
  CallJournal::record("PoPieChart::setMiscTextAttr", static_cast<const void*>(attr));
  textAttr = attr;
  changed();
}

PbMiscTextAttr* PoPieChart::getMiscTextAttr() const {
  CallJournal::record("PoPieChart::getMiscTextAttr");
  return textAttr;
}

void PoPieChart::setFormat(PbNumericDisplayFormat* newFormat) {
  CallJournal::record("PoPieChart::setFormat", static_cast<const void*>(newFormat));
  format = newFormat;
  changed();
}

PbNumericDisplayFormat* PoPieChart::getFormat() const {
  CallJournal::record("PoPieChart::getFormat");
  return format;
}

void PoPieChart::setSliceToTranslate(int slice, float distance) {
  CallJournal::record("PoPieChart::setSliceToTranslate", slice, distance);
  translate(slices, slice, distance);
  changed();
}

float PoPieChart::getSliceToTranslate(int slice) const {
  CallJournal::record("PoPieChart::getSliceToTranslate", slice);
  return translation(slices, slice);
}

int PoPieChart::getPickedSliceNumber(const SoPath* path, int& slice) const {
  CallJournal::record("PoPieChart::getPickedSliceNumber", static_cast<const void*>(path), slice);
  return pickSlice(this, slices, center, radius, path, slice);
}

void PoPieChart::rebuild() {
  CallJournal::record("PoPieChart::rebuild");
  runRebuild();
}

void PoPieChart::build() {
  CallJournal::record("PoPieChart::build");
  polygons.clear();
  for (std::size_t i = 0; i < slices.size(); ++i) {
    const Slice& s = slices[i];
    if (s.sweep <= 0.0f) continue;
    Polygon polygon{static_cast<int>(i), {}};
    const SbVec3f c = sliceCenter(center, s);
    polygon.points.push_back(c);
    const int steps = 1 + static_cast<int>(std::ceil(s.sweep / (kTwoPi / 64)));
    for (int k = 0; k <= steps; ++k) {
      const double a = s.startAngle + s.sweep * static_cast<double>(k) / steps;
      polygon.points.push_back(c + SbVec3f(static_cast<float>(radius * std::cos(a)),
                                           static_cast<float>(radius * std::sin(a)), 0.0f));
    }
    if (const PbDomain* d = domainInUse()) {
      for (SbVec3f& p : polygon.points) d->matrix().multVecMatrix(p, p);
    }
    polygons.push_back(std::move(polygon));
  }
}

void PoPieChart::draw(SoGLRenderAction* action) {
  for (const Polygon& polygon : polygons) {
    const Slice& s = slices[static_cast<std::size_t>(polygon.slice)];
    action->addPrimitive({SoGLRenderAction::Primitive::POLYGON, polygon.points, s.color, {}});
  }
  for (const Polygon& polygon : polygons) {
    const Slice& s = slices[static_cast<std::size_t>(polygon.slice)];
    if (s.name.empty()) continue;
    // The name outside the slice, along the middle of its span.
    const double middle = s.startAngle + s.sweep / 2.0;
    SbVec3f at = sliceCenter(center, s) + SbVec3f(static_cast<float>(1.2 * radius * std::cos(middle)),
                                                  static_cast<float>(1.2 * radius * std::sin(middle)), 0.0f);
    if (const PbDomain* d = domainInUse()) d->matrix().multVecMatrix(at, at);
    action->addPrimitive({SoGLRenderAction::Primitive::TEXT, {at}, s.color, s.name});
  }
}

// --- the concrete charts -----------------------------------------------------------------

PoPieChart2D::PoPieChart2D() { CallJournal::record("PoPieChart2D::PoPieChart2D"); }

PoPieChart2D::PoPieChart2D(const SbVec2f& c, float r, short count, const char** names, const float* values,
                           int numColors, const SbColor* colors) {
  CallJournal::record("PoPieChart2D::PoPieChart2D", c, r, count, journalArray(names, count),
                      journalArray(values, count), numColors, journalArray(colors, numColors));
  setSlices(SbVec3f(c[0], c[1], 0.0f), r, count, names, values, numColors, colors);
}

PoPieChart2D::~PoPieChart2D() = default;

PoPieChart3D::PoPieChart3D() { CallJournal::record("PoPieChart3D::PoPieChart3D"); }

PoPieChart3D::PoPieChart3D(const SbVec3f& c, float r, float h, short count, const char** names, const float* values,
                           int numColors, const SbColor* colors)
    : height(h) {
  CallJournal::record("PoPieChart3D::PoPieChart3D", c, r, h, count, journalArray(names, count),
                      journalArray(values, count), numColors, journalArray(colors, numColors));
  setSlices(c, r, count, names, values, numColors, colors);
}

PoPieChart3D::~PoPieChart3D() = default;

// --- PoPieChartRep -----------------------------------------------------------------------

PoPieChartRep::PoPieChartRep() { CallJournal::record("PoPieChartRep::PoPieChartRep"); }
PoPieChartRep::~PoPieChartRep() = default;

void PoPieChartRep::setValues(int count, const float* values) {
  slices.clear();
  for (int i = 0; i < count; ++i) {
    PoPieChart::Slice s{};
    s.value = values[i];
    slices.push_back(s);
  }
  layOut(slices);
}

void PoPieChartRep::setSliceToTranslate(int slice, float distance) {
  CallJournal::record("PoPieChartRep::setSliceToTranslate", slice, distance);
  translate(slices, slice, distance);
  changed();
}

float PoPieChartRep::getSliceToTranslate(int slice) const {
  CallJournal::record("PoPieChartRep::getSliceToTranslate", slice);
  return translation(slices, slice);
}

int PoPieChartRep::getPickedSliceNumber(const SoPath* path, int& slice) const {
  CallJournal::record("PoPieChartRep::getPickedSliceNumber", static_cast<const void*>(path), slice);
  return pickSlice(this, slices, SbVec3f(0, 0, 0), 1.0f, path, slice);
}
