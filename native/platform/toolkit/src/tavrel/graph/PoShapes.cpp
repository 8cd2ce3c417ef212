// The geometric shapes: circles and circle arcs in 2D and 3D, arrows and
// parallelograms.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PoArrow.h>
#include <Tavrel/PoArrow3.h>
#include <Tavrel/PoCircle3CenterRadius.h>
#include <Tavrel/PoCircle3ThreePoints.h>
#include <Tavrel/PoCircleArc3CtrPtAngle.h>
#include <Tavrel/PoCircleArc3CtrTwoPts.h>
#include <Tavrel/PoCircleArc3ThreePts.h>
#include <Tavrel/PoCircleArcCtrPtAngle.h>
#include <Tavrel/PoCircleArcCtrRadTwoAngle.h>
#include <Tavrel/PoCircleArcCtrTwoPts.h>
#include <Tavrel/PoCircleArcThreePts.h>
#include <Tavrel/PoCircleCenterRadius.h>
#include <Tavrel/PoCircleThreePoints.h>
#include <Tavrel/PoParallelogram.h>
#include <Tavrel/PoParallelogram3.h>

#include <Corvel/SoAction.h>

#include <cmath>

// --- types and catalogs --------------------------------------------------------

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoCircle, PoQuorvex, "PoCircle", {"circle"})
PO_GRAPH_KIT_SOURCE(PoCircleCenterRadius, PoCircle, "PoCircleCenterRadius", {})
PO_GRAPH_KIT_SOURCE(PoCircleThreePoints, PoCircle, "PoCircleThreePoints", {})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoCircle3, PoQuorvex, "PoCircle3", {"circle"})
PO_GRAPH_KIT_SOURCE(PoCircle3CenterRadius, PoCircle3, "PoCircle3CenterRadius", {})
PO_GRAPH_KIT_SOURCE(PoCircle3ThreePoints, PoCircle3, "PoCircle3ThreePoints", {})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoCircleArc, PoQuorvex, "PoCircleArc", {"arc"})
PO_GRAPH_KIT_SOURCE(PoCircleArcCtrPtAngle, PoCircleArc, "PoCircleArcCtrPtAngle", {})
PO_GRAPH_KIT_SOURCE(PoCircleArcCtrRadTwoAngle, PoCircleArc, "PoCircleArcCtrRadTwoAngle", {})
PO_GRAPH_KIT_SOURCE(PoCircleArcCtrTwoPts, PoCircleArc, "PoCircleArcCtrTwoPts", {})
PO_GRAPH_KIT_SOURCE(PoCircleArcThreePts, PoCircleArc, "PoCircleArcThreePts", {})
PO_GRAPH_KIT_ABSTRACT_SOURCE(PoCircleArc3, PoQuorvex, "PoCircleArc3", {"arc"})
PO_GRAPH_KIT_SOURCE(PoCircleArc3CtrPtAngle, PoCircleArc3, "PoCircleArc3CtrPtAngle", {})
PO_GRAPH_KIT_SOURCE(PoCircleArc3CtrTwoPts, PoCircleArc3, "PoCircleArc3CtrTwoPts", {})
PO_GRAPH_KIT_SOURCE(PoCircleArc3ThreePts, PoCircleArc3, "PoCircleArc3ThreePts", {})
PO_GRAPH_KIT_SOURCE(PoArrow, PoQuorvex, "PoArrow", {"arrowLine", "startPattern", "endPattern"})
PO_GRAPH_KIT_SOURCE(PoArrow3, PoQuorvex, "PoArrow3", {"arrowLine", "startPattern", "endPattern"})
PO_GRAPH_KIT_SOURCE(PoParallelogram, PoQuorvex, "PoParallelogram", {"outline"})
PO_GRAPH_KIT_SOURCE(PoParallelogram3, PoQuorvex, "PoParallelogram3", {"outline"})

namespace {
constexpr double kTwoPi = 6.283185307179586;
constexpr int kCircleSegments = 64;
constexpr int kArcSegments = 32;

SbVec3f in3D(const SbVec2f& p) { return SbVec3f(p[0], p[1], 0.0f); }
SbVec2f in2D(const SbVec3f& p) { return SbVec2f(p[0], p[1]); }

SbVec3f unit(const SbVec3f& v, const SbVec3f& fallback) {
  const float l = v.length();
  return l > 0.0f ? v * (1.0f / l) : fallback;
}

// Any unit vector perpendicular to the unit vector n.
SbVec3f perpendicular(const SbVec3f& n) {
  const SbVec3f axis = std::fabs(n[0]) < 0.9f ? SbVec3f(1, 0, 0) : SbVec3f(0, 1, 0);
  return unit(axis - n * axis.dot(n), SbVec3f(1, 0, 0));
}

// The circle through three points: centre, radius and the normal of their
// plane ((b - a) x (c - a) normalised). false for collinear points, which
// get the circle on the segment of the two points farthest apart and the
// normal (0, 0, 1).
bool circleThrough(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c, SbVec3f& center, float& radius,
                   SbVec3f& normal) {
  const SbVec3f ab = b - a;
  const SbVec3f ac = c - a;
  const SbVec3f n = ab.cross(ac);
  const double n2 = static_cast<double>(n.dot(n));
  const double scale = static_cast<double>(ab.dot(ab)) * static_cast<double>(ac.dot(ac));
  if (n2 <= 1e-12 * scale || n2 == 0.0) {
    const SbVec3f* p[3] = {&a, &b, &c};
    int i = 0, j = 1;
    float best = -1.0f;
    for (int s = 0; s < 3; ++s) {
      for (int t = s + 1; t < 3; ++t) {
        const float d = (*p[t] - *p[s]).length();
        if (d > best) best = d, i = s, j = t;
      }
    }
    center = (*p[i] + *p[j]) * 0.5f;
    radius = best * 0.5f;
    normal = SbVec3f(0, 0, 1);
    return false;
  }
  // The circumcentre: a + ((|ab|^2 ac - |ac|^2 ab) x n) / (2 |n|^2).
  const SbVec3f t = (ac * ab.dot(ab) - ab * ac.dot(ac)).cross(n);
  const SbVec3f offset = t * static_cast<float>(1.0 / (2.0 * n2));
  center = a + offset;
  radius = offset.length();
  normal = n * static_cast<float>(1.0 / std::sqrt(n2));
  return true;
}

// The signed angle from u to v about the unit normal n, in (-pi, pi].
float angleAbout(const SbVec3f& u, const SbVec3f& v, const SbVec3f& n) {
  return static_cast<float>(std::atan2(static_cast<double>(n.dot(u.cross(v))), static_cast<double>(u.dot(v))));
}

// The counter-clockwise angle from u to v about n, in [0, 2 pi).
float positiveAngle(const SbVec3f& u, const SbVec3f& v, const SbVec3f& n) {
  float a = angleAbout(u, v, n);
  if (a < 0.0f) a += static_cast<float>(kTwoPi);
  return a;
}

void mapThroughDomain(const PoBase& node, std::vector<SbVec3f>& points) {
  if (const PbDomain* d = node.domainInUse()) {
    for (SbVec3f& p : points) d->matrix().multVecMatrix(p, p);
  }
}

// Points of the circle about centre in the plane (u, v), from angle start
// over sweep, in segments + 1 points.
std::vector<SbVec3f> arcPoints(const SbVec3f& center, float radius, const SbVec3f& u, const SbVec3f& v, float start,
                               float sweep, int segments) {
  std::vector<SbVec3f> points;
  if (radius == 0.0f) {
    points.push_back(center);
    return points;
  }
  for (int i = 0; i <= segments; ++i) {
    const double a = start + sweep * static_cast<double>(i) / segments;
    points.push_back(center + u * static_cast<float>(radius * std::cos(a)) +
                     v * static_cast<float>(radius * std::sin(a)));
  }
  return points;
}
}  // namespace

// --- PoCircle --------------------------------------------------------------------------

PoCircle::PoCircle() = default;
PoCircle::~PoCircle() = default;

void PoCircle::rebuild() {
  CallJournal::record("PoCircle::rebuild");
  runRebuild();
}

void PoCircle::build() {
  CallJournal::record("PoCircle::build");
  outline = arcPoints(in3D(center), radius, SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), 0.0f, static_cast<float>(kTwoPi),
                      kCircleSegments);
  mapThroughDomain(*this, outline);
}

void PoCircle::setCircle(const SbVec2f& newCenter, float newRadius) {
  center = newCenter;
  radius = std::fabs(newRadius);
}

PoCircleCenterRadius::~PoCircleCenterRadius() = default;

void PoCircleCenterRadius::init(const SbVec2f& c, float r) {
  CallJournal::record("PoCircleCenterRadius::init", c, r);
  setCircle(c, r);
}

PoCircleThreePoints::~PoCircleThreePoints() = default;

void PoCircleThreePoints::init(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3) {
  CallJournal::record("PoCircleThreePoints::init", p1, p2, p3);
  SbVec3f c, n;
  float r = 0.0f;
  circleThrough(in3D(p1), in3D(p2), in3D(p3), c, r, n);
  setCircle(in2D(c), r);
}

// --- PoCircle3 -------------------------------------------------------------------------

PoCircle3::PoCircle3() = default;
PoCircle3::~PoCircle3() = default;

void PoCircle3::rebuild() {
  CallJournal::record("PoCircle3::rebuild");
  runRebuild();
}

void PoCircle3::build() {
  CallJournal::record("PoCircle3::build");
  const SbVec3f u = perpendicular(normal);
  outline = arcPoints(center, radius, u, normal.cross(u), 0.0f, static_cast<float>(kTwoPi), kCircleSegments);
  mapThroughDomain(*this, outline);
}

void PoCircle3::setCircle(const SbVec3f& newCenter, float newRadius, const SbVec3f& newNormal) {
  center = newCenter;
  radius = std::fabs(newRadius);
  normal = unit(newNormal, SbVec3f(0, 0, 1));
}

PoCircle3CenterRadius::~PoCircle3CenterRadius() = default;

void PoCircle3CenterRadius::init(int isDefault, const SbVec3f& c, float r, const SbVec3f& n) {
  CallJournal::record("PoCircle3CenterRadius::init", isDefault, c, r, n);
  setCircle(c, r, n);
}

PoCircle3ThreePoints::~PoCircle3ThreePoints() = default;

void PoCircle3ThreePoints::init(int isDefault, const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3) {
  CallJournal::record("PoCircle3ThreePoints::init", isDefault, p1, p2, p3);
  SbVec3f c, n;
  float r = 0.0f;
  circleThrough(p1, p2, p3, c, r, n);
  setCircle(c, r, n);
}

// --- PoCircleArc -----------------------------------------------------------------------

PoCircleArc::PoCircleArc() = default;
PoCircleArc::~PoCircleArc() = default;

void PoCircleArc::rebuild() {
  CallJournal::record("PoCircleArc::rebuild");
  runRebuild();
}

SbVec2f PoCircleArc::getEndPoint() const {
  if (segment) return segmentEnd;
  const double a = static_cast<double>(startAngle) + sweep;
  return center + SbVec2f(static_cast<float>(radius * std::cos(a)), static_cast<float>(radius * std::sin(a)));
}

void PoCircleArc::build() {
  CallJournal::record("PoCircleArc::build");
  if (segment) {
    outline = {in3D(segmentStart), in3D(segmentEnd)};
  } else {
    outline = arcPoints(in3D(center), radius, SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), startAngle, sweep, kArcSegments);
  }
  mapThroughDomain(*this, outline);
}

void PoCircleArc::setArc(const SbVec2f& newCenter, float newRadius, float newStartAngle, float newSweep) {
  segment = false;
  center = newCenter;
  radius = std::fabs(newRadius);
  startAngle = newStartAngle;
  sweep = newSweep;
}

void PoCircleArc::setSegment(const SbVec2f& a, const SbVec2f& b) {
  setArc((a + b) * 0.5f, 0.0f, 0.0f, 0.0f);
  segment = true;
  segmentStart = a;
  segmentEnd = b;
}

namespace {
float direction(const SbVec2f& v) { return static_cast<float>(std::atan2(v[1], v[0])); }
}  // namespace

PoCircleArcCtrPtAngle::~PoCircleArcCtrPtAngle() = default;

void PoCircleArcCtrPtAngle::init(const SbVec2f& c, const SbVec2f& p, float angle) {
  CallJournal::record("PoCircleArcCtrPtAngle::init", c, p, angle);
  setArc(c, (p - c).length(), direction(p - c), angle);
}

PoCircleArcCtrRadTwoAngle::~PoCircleArcCtrRadTwoAngle() = default;

void PoCircleArcCtrRadTwoAngle::init(const SbVec2f& c, float r, float angle1, float angle2) {
  CallJournal::record("PoCircleArcCtrRadTwoAngle::init", c, r, angle1, angle2);
  setArc(c, r, angle1, angle2 - angle1);
}

PoCircleArcCtrTwoPts::~PoCircleArcCtrTwoPts() = default;

void PoCircleArcCtrTwoPts::init(const SbVec2f& c, const SbVec2f& p1, const SbVec2f& p2) {
  CallJournal::record("PoCircleArcCtrTwoPts::init", c, p1, p2);
  float sweep = positiveAngle(in3D(p1 - c), in3D(p2 - c), SbVec3f(0, 0, 1));
  if (sweep == 0.0f) sweep = static_cast<float>(kTwoPi);
  setArc(c, (p1 - c).length(), direction(p1 - c), sweep);
}

PoCircleArcThreePts::~PoCircleArcThreePts() = default;

void PoCircleArcThreePts::init(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3) {
  CallJournal::record("PoCircleArcThreePts::init", p1, p2, p3);
  SbVec3f c, n;
  float r = 0.0f;
  if (!circleThrough(in3D(p1), in3D(p2), in3D(p3), c, r, n)) {
    setSegment(p1, p3);
    return;
  }
  const SbVec3f z(0, 0, 1);
  const SbVec3f u = in3D(p1) - c;
  const float toMiddle = positiveAngle(u, in3D(p2) - c, z);
  const float toEnd = positiveAngle(u, in3D(p3) - c, z);
  // Counter-clockwise when the middle comes before the end that way.
  const float sweep = toMiddle < toEnd ? toEnd : toEnd - static_cast<float>(kTwoPi);
  setArc(in2D(c), r, direction(in2D(u)), sweep);
}

// --- PoCircleArc3 ----------------------------------------------------------------------

PoCircleArc3::PoCircleArc3() = default;
PoCircleArc3::~PoCircleArc3() = default;

void PoCircleArc3::rebuild() {
  CallJournal::record("PoCircleArc3::rebuild");
  runRebuild();
}

SbVec3f PoCircleArc3::pointAt(float angle) const {
  const SbVec3f v = normal.cross(startDirection);
  return center + startDirection * static_cast<float>(radius * std::cos(angle)) +
         v * static_cast<float>(radius * std::sin(angle));
}

SbVec3f PoCircleArc3::getStartPoint() const { return segment ? segmentStart : pointAt(0.0f); }

SbVec3f PoCircleArc3::getEndPoint() const { return segment ? segmentEnd : pointAt(sweep); }

void PoCircleArc3::build() {
  CallJournal::record("PoCircleArc3::build");
  if (segment) {
    outline = {segmentStart, segmentEnd};
  } else {
    outline = arcPoints(center, radius, startDirection, normal.cross(startDirection), 0.0f, sweep, kArcSegments);
  }
  mapThroughDomain(*this, outline);
}

void PoCircleArc3::setArc(const SbVec3f& newCenter, const SbVec3f& start, const SbVec3f& newNormal, float newSweep) {
  segment = false;
  center = newCenter;
  normal = unit(newNormal, SbVec3f(0, 0, 1));
  SbVec3f d = start - newCenter;
  d = d - normal * d.dot(normal);
  radius = d.length();
  startDirection = unit(d, perpendicular(normal));
  sweep = newSweep;
}

void PoCircleArc3::setSegment(const SbVec3f& a, const SbVec3f& b) {
  const SbVec3f middle = (a + b) * 0.5f;
  setArc(middle, middle, SbVec3f(0, 0, 1), 0.0f);
  segment = true;
  segmentStart = a;
  segmentEnd = b;
}

PoCircleArc3CtrPtAngle::~PoCircleArc3CtrPtAngle() = default;

void PoCircleArc3CtrPtAngle::init(int isDefault, const SbVec3f& c, const SbVec3f& p, float angle,
                                  const SbVec3f& n) {
  CallJournal::record("PoCircleArc3CtrPtAngle::init", isDefault, c, p, angle, n);
  setArc(c, p, n, angle);
}

PoCircleArc3CtrTwoPts::~PoCircleArc3CtrTwoPts() = default;

void PoCircleArc3CtrTwoPts::init(int isDefault, const SbVec3f& c, const SbVec3f& p1, const SbVec3f& p2) {
  CallJournal::record("PoCircleArc3CtrTwoPts::init", isDefault, c, p1, p2);
  const SbVec3f u = p1 - c;
  const SbVec3f w = p2 - c;
  const SbVec3f n = u.cross(w);
  if (n.length() > 0.0f) {
    setArc(c, p1, n, angleAbout(u, w, unit(n, SbVec3f(0, 0, 1))));
  } else {
    setArc(c, p1, SbVec3f(0, 0, 1), u.dot(w) < 0.0f ? static_cast<float>(kTwoPi / 2) : 0.0f);
  }
}

PoCircleArc3ThreePts::~PoCircleArc3ThreePts() = default;

void PoCircleArc3ThreePts::init(int isDefault, const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3) {
  CallJournal::record("PoCircleArc3ThreePts::init", isDefault, p1, p2, p3);
  SbVec3f c, n;
  float r = 0.0f;
  if (!circleThrough(p1, p2, p3, c, r, n)) {
    setSegment(p1, p3);
    return;
  }
  // With this normal, p1 -> p2 -> p3 is counter-clockwise.
  setArc(c, p1, n, positiveAngle(p1 - c, p3 - c, n));
}

// --- arrows ----------------------------------------------------------------------------

PoArrow::~PoArrow() = default;

void PoArrow::init(int isDefault, int count, const SbVec2f* newPoints, PatternType start, PatternType end, float w,
                   float l) {
  CallJournal::record("PoArrow::init", isDefault, count, journalArray(newPoints, count), static_cast<int>(start),
                      static_cast<int>(end), w, l);
  numPoints = count;
  points.assign(newPoints, newPoints == nullptr || count <= 0 ? newPoints : newPoints + count);
  startPattern = start;
  endPattern = end;
  width = w;
  length = l;
}

void PoArrow::rebuild() {
  CallJournal::record("PoArrow::rebuild");
  runRebuild();
}

void PoArrow::build() {
  CallJournal::record("PoArrow::build");
  outline.clear();
  for (const SbVec2f& p : points) outline.push_back(in3D(p));
  mapThroughDomain(*this, outline);
}

PoArrow3::~PoArrow3() = default;

void PoArrow3::init(int isDefault, int count, const SbVec3f* newPoints, PatternType start, PatternType end,
                    float w, float l) {
  CallJournal::record("PoArrow3::init", isDefault, count, journalArray(newPoints, count), static_cast<int>(start),
                      static_cast<int>(end), w, l);
  numPoints = count;
  points.assign(newPoints, newPoints == nullptr || count <= 0 ? newPoints : newPoints + count);
  startPattern = start;
  endPattern = end;
  width = w;
  length = l;
}

void PoArrow3::rebuild() {
  CallJournal::record("PoArrow3::rebuild");
  runRebuild();
}

void PoArrow3::build() {
  CallJournal::record("PoArrow3::build");
  outline = points;
  mapThroughDomain(*this, outline);
}

// --- parallelograms --------------------------------------------------------------------

PoParallelogram::~PoParallelogram() = default;

void PoParallelogram::init(const SbVec2f& a, const SbVec2f& b, const SbVec2f& c) {
  CallJournal::record("PoParallelogram::init", a, b, c);
  corners[0] = a;
  corners[1] = b;
  corners[2] = c;
  corners[3] = a + c - b;
}

void PoParallelogram::rebuild() {
  CallJournal::record("PoParallelogram::rebuild");
  runRebuild();
}

void PoParallelogram::build() {
  CallJournal::record("PoParallelogram::build");
  outline = {in3D(corners[0]), in3D(corners[1]), in3D(corners[2]), in3D(corners[3]), in3D(corners[0])};
  mapThroughDomain(*this, outline);
}

PoParallelogram3::~PoParallelogram3() = default;

void PoParallelogram3::init(int isDefault, const SbVec3f& a, const SbVec3f& b, const SbVec3f& c) {
  CallJournal::record("PoParallelogram3::init", isDefault, a, b, c);
  corners[0] = a;
  corners[1] = b;
  corners[2] = c;
  corners[3] = a + c - b;
}

void PoParallelogram3::rebuild() {
  CallJournal::record("PoParallelogram3::rebuild");
  runRebuild();
}

void PoParallelogram3::build() {
  CallJournal::record("PoParallelogram3::build");
  outline = {corners[0], corners[1], corners[2], corners[3], corners[0]};
  mapThroughDomain(*this, outline);
}

void PoCircle::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoCircle3::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoCircleArc::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoCircleArc3::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoArrow::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoArrow3::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoParallelogram::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}

void PoParallelogram3::draw(SoGLRenderAction* action) {
  action->addPrimitive({SoGLRenderAction::Primitive::LINE, outline, SbColor(0, 0, 0), {}});
}
