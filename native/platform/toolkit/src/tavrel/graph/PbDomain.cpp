// PbBase and PbDomain.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDomain.h>

#include <algorithm>
#include <cmath>

// --- PbBase ------------------------------------------------------------------

PbBase::~PbBase() = default;

void PbBase::touch() {
  CallJournal::record("PbBase::touch");
  changed();
}

// --- PbDomain ----------------------------------------------------------------

namespace {
// The box after the bounding-box rule, on the first `axes` axes.
SbBox3f adjusted(const SbBox3f& box, int axes, PbDomain::BoundingBoxType type) {
  if (type != PbDomain::MINBOUNDINGCUBE && type != PbDomain::MAXBOUNDEDCUBE) return box;
  float lo[3], hi[3], side = 0.0f;
  for (int i = 0; i < 3; ++i) {
    lo[i] = box.getMin()[i];
    hi[i] = box.getMax()[i];
  }
  for (int i = 0; i < axes; ++i) {
    const float length = hi[i] - lo[i];
    if (i == 0 || (type == PbDomain::MINBOUNDINGCUBE ? length > side : length < side)) side = length;
  }
  for (int i = 0; i < axes; ++i) {
    const float grow = (side - (hi[i] - lo[i])) / 2;
    lo[i] -= grow;
    hi[i] += grow;
  }
  return SbBox3f(lo[0], lo[1], lo[2], hi[0], hi[1], hi[2]);
}

SbBox3f flat(const SbBox2f& box) {
  return SbBox3f(box.getMin()[0], box.getMin()[1], 0.0f, box.getMax()[0], box.getMax()[1], 0.0f);
}

SbBox2f toBox2f(const SbBox3f& box) {
  return SbBox2f(box.getMin()[0], box.getMin()[1], box.getMax()[0], box.getMax()[1]);
}

// 1 / length, or 1 for a side without a usable length.
float inverse(float length) { return length != 0.0f && std::isfinite(1.0f / length) ? 1.0f / length : 1.0f; }
}  // namespace

PbDomain::PbDomain() : domainBox(0, 0, 0, 1, 1, 1) {
  CallJournal::record("PbDomain::PbDomain");
  update();
}

PbDomain::PbDomain(const PbDomain& other)
    : PbBase(other),
      domainBox(other.domainBox),
      twoD(other.twoD),
      transformType(other.transformType),
      transform(other.transform) {
  CallJournal::record("PbDomain::PbDomain(copy)", static_cast<const void*>(&other));
}

PbDomain::PbDomain(SbBox2f& box, BoundingBoxType type) {
  CallJournal::record("PbDomain::PbDomain", box, static_cast<int>(type));
  set(flat(box), true, type);
  box = toBox2f(domainBox);
}

PbDomain::PbDomain(SbBox3f& box, BoundingBoxType type) {
  CallJournal::record("PbDomain::PbDomain", box, static_cast<int>(type));
  set(box, false, type);
  box = domainBox;
}

PbDomain::PbDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxType type) {
  CallJournal::record("PbDomain::PbDomain", xmin, ymin, xmax, ymax, static_cast<int>(type));
  set(SbBox3f(xmin, ymin, 0, xmax, ymax, 0), true, type);
}

PbDomain::PbDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax, BoundingBoxType type) {
  CallJournal::record("PbDomain::PbDomain", xmin, ymin, zmin, xmax, ymax, zmax, static_cast<int>(type));
  set(SbBox3f(xmin, ymin, zmin, xmax, ymax, zmax), false, type);
}

PbDomain::~PbDomain() = default;

void PbDomain::setDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxType type) {
  CallJournal::record("PbDomain::setDomain", xmin, ymin, xmax, ymax, static_cast<int>(type));
  set(SbBox3f(xmin, ymin, 0, xmax, ymax, 0), true, type);
}

void PbDomain::setDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax,
                         BoundingBoxType type) {
  CallJournal::record("PbDomain::setDomain", xmin, ymin, zmin, xmax, ymax, zmax, static_cast<int>(type));
  set(SbBox3f(xmin, ymin, zmin, xmax, ymax, zmax), false, type);
}

void PbDomain::setDomain(SbBox2f& box, BoundingBoxType type) {
  CallJournal::record("PbDomain::setDomain", box, static_cast<int>(type));
  set(flat(box), true, type);
  box = toBox2f(domainBox);
}

void PbDomain::setDomain(SbBox3f& box, BoundingBoxType type) {
  CallJournal::record("PbDomain::setDomain", box, static_cast<int>(type));
  set(box, false, type);
  box = domainBox;
}

void PbDomain::getDomain(SbBox2f& box) const {
  CallJournal::record("PbDomain::getDomain(SbBox2f)");
  box = toBox2f(domainBox);
}

void PbDomain::getDomain(SbBox3f& box) const {
  CallJournal::record("PbDomain::getDomain(SbBox3f)");
  box = domainBox;
}

SbMatrix PbDomain::getMatrix() const {
  CallJournal::record("PbDomain::getMatrix");
  return transform;
}

void PbDomain::setTransformType(TransformType type) {
  CallJournal::record("PbDomain::setTransformType", static_cast<int>(type));
  transformType = type;
  update();
  changed();
}

const SbMatrix* PbDomain::getMatrixTransform() const {
  CallJournal::record("PbDomain::getMatrixTransform");
  return &transform;
}

SoNode* PbDomain::getTransform() const {
  CallJournal::record("PbDomain::getTransform");
  return nullptr;
}

int PbDomain::operator==(const PbDomain& other) const {
  CallJournal::record("PbDomain::operator==", static_cast<const void*>(&other));
  const SbBox3f& a = domainBox;
  const SbBox3f& b = other.domainBox;
  return a.getMin() == b.getMin() && a.getMax() == b.getMax() && twoD == other.twoD &&
         transformType == other.transformType;
}

void PbDomain::set(const SbBox3f& box, bool is2D, BoundingBoxType type) {
  domainBox = adjusted(box, is2D ? 2 : 3, type);
  twoD = is2D;
  update();
  changed();
}

void PbDomain::update() {
  const SbVec3f lo = domainBox.getMin();
  const SbVec3f hi = domainBox.getMax();
  const int axes = twoD ? 2 : 3;
  float scale[3] = {inverse(hi[0] - lo[0]), inverse(hi[1] - lo[1]), inverse(hi[2] - lo[2])};
  int fixed = -1;
  switch (transformType) {
    case SCALEXFIXED: fixed = 0; break;
    case SCALEYFIXED: fixed = 1; break;
    case SCALEZFIXED: fixed = 2; break;
    case SCALEMAXXYZFIXED:
      fixed = 0;
      for (int i = 1; i < axes; ++i)
        if (hi[i] - lo[i] > hi[fixed] - lo[fixed]) fixed = i;
      break;
    default: break;
  }
  if (fixed >= 0) {
    const float common = scale[fixed];
    for (int i = 0; i < axes; ++i) scale[i] = common;
  }
  transform.makeIdentity();
  for (int i = 0; i < axes; ++i) {
    transform[i][i] = scale[i];
    transform[3][i] = -lo[i] * scale[i];
  }
}
