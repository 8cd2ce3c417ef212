// The graph stand-in: attribute objects (domains, data mappings, isovalue
// lists, formats) and the rebuild of graph nodes.

#include <gtest/gtest.h>

#include <Corvel/SoAction.h>
#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PbNonLinearDataMapping2.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoCurve.h>
#include <Tavrel/PoRectangle.h>
#include <Tavrel/PoTavrel.h>

#include <cmath>
#include <string>
#include <vector>

namespace {
SbVec3f mapped(const PbDomain& d, const SbVec3f& p) {
  SbVec3f out;
  d.getMatrix().multVecMatrix(p, out);
  return out;
}

void expectColor(const SbColor& c, float r, float g, float b) {
  EXPECT_NEAR(c[0], r, 1e-6f);
  EXPECT_NEAR(c[1], g, 1e-6f);
  EXPECT_NEAR(c[2], b, 1e-6f);
}
}  // namespace

TEST(PbDomain, BoundingBoxTypesMakeCubesAroundOrInsideTheBoxAndWriteItBack) {
  SbBox3f box(0, 0, 0, 4, 2, 1);
  PbDomain around(box, PbDomain::MINBOUNDINGCUBE);
  EXPECT_EQ(box.getMin(), SbVec3f(0, -1, -1.5f));
  EXPECT_EQ(box.getMax(), SbVec3f(4, 3, 2.5f));

  SbBox2f flat(0, 0, 4, 2);
  PbDomain inside(flat, PbDomain::MAXBOUNDEDCUBE);
  EXPECT_EQ(flat.getMin(), SbVec2f(1, 0));
  EXPECT_EQ(flat.getMax(), SbVec2f(3, 2));
  EXPECT_TRUE(inside.is2D());

  SbBox3f kept(5, 5, 5, 6, 7, 8);
  PbDomain asIs(kept, PbDomain::ASIS);
  EXPECT_EQ(kept.getMax(), SbVec3f(6, 7, 8));
}

TEST(PbDomain, TransformTypesScaleTheBoxIntoTheUnitSpace) {
  PbDomain d(-2, 0, 0, 2, 1, 10, PbDomain::ASIS);  // sides 4, 1, 10
  EXPECT_EQ(mapped(d, SbVec3f(2, 1, 10)), SbVec3f(1, 1, 1));
  EXPECT_EQ(mapped(d, SbVec3f(-2, 0, 0)), SbVec3f(0, 0, 0));

  d.setTransformType(PbDomain::SCALEXFIXED);
  EXPECT_EQ(mapped(d, SbVec3f(2, 1, 10)), SbVec3f(1, 0.25f, 2.5f));
  d.setTransformType(PbDomain::SCALEYFIXED);
  EXPECT_EQ(mapped(d, SbVec3f(2, 1, 10)), SbVec3f(4, 1, 10));
  d.setTransformType(PbDomain::SCALEMAXXYZFIXED);
  EXPECT_EQ(mapped(d, SbVec3f(2, 1, 10)), SbVec3f(0.4f, 0.1f, 1));
  EXPECT_EQ(*d.getMatrixTransform(), d.getMatrix());

  // A 2D domain leaves z alone; a side of length 0 scales by 1.
  PbDomain flat(1, 1, 3, 1, PbDomain::ASIS);
  EXPECT_EQ(mapped(flat, SbVec3f(2, 5, 7)), SbVec3f(0.5f, 4, 7));
  EXPECT_EQ(flat.getTransform(), nullptr);
}

TEST(PbDomain, CopiesAreEqualAndIndependent) {
  PbDomain a(0, 0, 1, 2, PbDomain::ASIS);
  PbDomain b(a);
  EXPECT_TRUE(a == b);
  b.setTransformType(PbDomain::SCALEXFIXED);
  EXPECT_FALSE(a == b);
  EXPECT_EQ(a.getTransformType(), PbDomain::TRANSFORM01);
  PbDomain c(0, 0, 0, 1, 2, 0, PbDomain::ASIS);  // the same box, but 3D
  EXPECT_FALSE(a == c);
}

TEST(PbLinearDataMapping, InterpolatesBetweenItsEndsAndAppliesThresholds) {
  PbLinearDataMapping m;
  m.setValues(10, SbColor(1, 0, 0), 0.5f, 20, SbColor(0, 0, 1), 1);
  float t = -1;
  expectColor(m.colorOf(15, &t), 0.5f, 0, 0.5f);
  EXPECT_FLOAT_EQ(t, 0.75f);
  expectColor(m.colorOf(0), 1, 0, 0);
  expectColor(m.colorOf(30), 0, 0, 1);
  expectColor(m.colorOf(NAN), 1, 0, 0);

  m.setMinThreshold(12, SbColor(0, 1, 0), 0.25f);
  expectColor(m.colorOf(11), 0.9f, 0, 0.1f);  // thresholds start disabled
  m.enableThresholds(1, 0);
  expectColor(m.colorOf(11, &t), 0, 1, 0);
  EXPECT_FLOAT_EQ(t, 0.25f);
  SbBool min = 0, max = 1;
  m.thresholdsEnabled(min, max);
  EXPECT_EQ(min, 1);
  EXPECT_EQ(max, 0);

  // Reversed ends give the same colours.
  PbLinearDataMapping r;
  r.setValues(20, SbColor(0, 0, 1), 10, SbColor(1, 0, 0));
  expectColor(r.colorOf(15), 0.5f, 0, 0.5f);
}

TEST(PbDataMapping, HlsColoursConvertToAndFromRgb) {
  const float red[3] = {0, 0.5f, 1};
  expectColor(PbDataMapping::hlsToRgb(red), 1, 0, 0);
  const float cyan[3] = {180, 0.5f, 1};
  expectColor(PbDataMapping::hlsToRgb(cyan), 0, 1, 1);
  const float grey[3] = {77, 0.25f, 0};
  expectColor(PbDataMapping::hlsToRgb(grey), 0.25f, 0.25f, 0.25f);
  float hls[3];
  PbDataMapping::rgbToHls(SbColor(0.2f, 0.4f, 0.8f), hls);
  EXPECT_NEAR(hls[0], 220, 1e-4f);
  EXPECT_NEAR(hls[1], 0.5f, 1e-6f);
  EXPECT_NEAR(hls[2], 0.6f, 1e-6f);
  expectColor(PbDataMapping::hlsToRgb(hls), 0.2f, 0.4f, 0.8f);

  PbLinearDataMapping m;  // 0 black to 1 white
  const float* mid = m.getHLSColor(0.5f);
  EXPECT_FLOAT_EQ(mid[1], 0.5f);
  EXPECT_FLOAT_EQ(mid[2], 0);
}

TEST(PbNonLinearDataMapping2, LevelsAndLinearLevelsGiveTheirColours) {
  const float values[] = {1, 2};
  const SbColor colours[] = {SbColor(1, 0, 0), SbColor(0, 1, 0), SbColor(0, 0, 1)};
  const float transparency[] = {0, 0.5f, 1};
  PbNonLinearDataMapping2 m;
  m.setValues(PbNonLinearDataMapping2::NONLINEARPERLEVEL, 2, values, colours, transparency);
  EXPECT_EQ(m.getNumColors(), 3);
  expectColor(m.colorOf(0.5f), 1, 0, 0);
  expectColor(m.colorOf(1), 0, 1, 0);  // a value on a boundary takes the level above
  float t = -1;
  expectColor(m.colorOf(5, &t), 0, 0, 1);
  EXPECT_FLOAT_EQ(t, 1);

  m.setValues(PbNonLinearDataMapping2::LINEARPERLEVEL, 2, values, colours);
  EXPECT_EQ(m.getNumColors(), 2);
  EXPECT_EQ(m.getTransparencyList(), nullptr);
  expectColor(m.colorOf(1.5f), 0.5f, 0.5f, 0);
  expectColor(m.colorOf(-3), 1, 0, 0);

  m.setValues(PbNonLinearDataMapping2::LINEARPERLEVEL, 0, values, nullptr);
  EXPECT_EQ(m.getValuesList(), nullptr);
  EXPECT_EQ(m.getColorsList(), nullptr);
  expectColor(m.colorOf(1), 0, 0, 0);
}

// The smallest and largest value of an irregular list are those of a loop over the values in
// order that keeps a value only when strictly smaller (larger): a NaN first is kept, later NaNs
// are passed over, and of +0 and -0 the first one stays. Long lists, where the scan runs in
// lanes, against the loop, with NaNs and zeros of both signs at every place.
TEST(PbIsovaluesList, RangeOfIrregularListIsTheOrderedLoops) {
  const float nan = std::nanf("");
  auto loop = [](const std::vector<float>& v, float& min, float& max) {
    min = max = v.empty() ? 0.0f : v[0];
    for (float x : v) {
      if (x < min) min = x;
      if (x > max) max = x;
    }
  };
  auto same = [](float a, float b) { return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b)); };
  unsigned seed = 12345;
  auto next = [&seed] { return (seed = seed * 1103515245u + 12345u) >> 8; };
  PbIsovaluesList list;
  int cases = 0;
  for (int n : {0, 1, 5, 31, 32, 33, 47, 48, 49, 100, 1000}) {
    for (int trial = 0; trial < 40; ++trial) {
      std::vector<float> v(static_cast<std::size_t>(n));
      const int kind = trial % 5;  // values of both signs, then all >= 0, all <= 0, zeros only, with NaNs
      for (float& x : v) {
        const float r = static_cast<float>(next() % 2001) / 100.0f;
        x = kind == 0 ? r - 10.0f : kind == 1 ? r : kind == 2 ? -r : 0.0f;
        if (next() % 7 == 0) x = (next() % 2) ? 0.0f : -0.0f;
        if (kind == 4 && next() % 5 == 0) x = nan;
      }
      if (n > 0 && trial % 8 == 3) v[0] = nan;
      list.setIrregularIsoList(n, v.data());
      int num = 0;
      float min, max, step;
      SbBool regular;
      list.getIsoList(num, min, max, step, regular);
      float wantMin, wantMax;
      loop(v, wantMin, wantMax);
      ASSERT_TRUE(same(min, wantMin)) << "n " << n << " trial " << trial << ": " << min << " against " << wantMin;
      ASSERT_TRUE(same(max, wantMax)) << "n " << n << " trial " << trial << ": " << max << " against " << wantMax;
      ++cases;
    }
  }
  EXPECT_EQ(cases, 440);
}

TEST(PbIsovaluesList, RegularAndIrregularLists) {
  int num = -1;
  float min = -1, max = -1, step = -1;
  SbBool regular = 0;
  PbIsovaluesList empty;
  ASSERT_NE(empty.getIsoList(num, min, max, step, regular), nullptr);
  EXPECT_EQ(num, 0);
  EXPECT_EQ(regular, 1);

  PbIsovaluesList list(0, 1, 5);
  const float* v = list.getIsoList(num, min, max, step, regular);
  EXPECT_EQ(std::vector<float>(v, v + num), (std::vector<float>{0, 0.25f, 0.5f, 0.75f, 1}));
  EXPECT_FLOAT_EQ(step, 0.25f);

  list.setRegularIsoList(3);
  v = list.getIsoList(num, min, max, step, regular);
  EXPECT_EQ(std::vector<float>(v, v + num), (std::vector<float>{0, 0.5f, 1}));
  list.setRegularIsoList(4, 10.0f, 2.0f);
  v = list.getIsoList(num, min, max, step, regular);
  EXPECT_EQ(std::vector<float>(v, v + num), (std::vector<float>{10, 12, 14, 16}));
  EXPECT_EQ(max, 16);
  const float data[] = {7, -3, 5};
  list.setRegularIsoList(3, data, 2);
  v = list.getIsoList(num, min, max, step, regular);
  EXPECT_EQ(std::vector<float>(v, v + num), (std::vector<float>{-3, 7}));
  list.setIrregularIsoList(3, data);
  v = list.getIsoList(num, min, max, step, regular);
  EXPECT_EQ(std::vector<float>(v, v + num), (std::vector<float>{7, -3, 5}));
  EXPECT_EQ(min, -3);
  EXPECT_EQ(max, 7);
  EXPECT_EQ(step, 0);
  EXPECT_EQ(regular, 0);

  PbIsovaluesList copy(list);
  EXPECT_TRUE(copy == list);
  copy.setRegularIsoList(1);
  EXPECT_FALSE(copy == list);
}

TEST(PbNumericDisplayFormat, WritesNumbersByTypeWidthAndPrecision) {
  PbNumericDisplayFormat f(PbNumericDisplayFormat::FLOATFORMAT, 8, 2);
  EXPECT_STREQ(f.format(3.14159f).getString(), "    3.14");
  f.setFormat(PbNumericDisplayFormat::INTEGERFORMAT, 0, 5);
  EXPECT_STREQ(f.format(2.5f).getString(), "2");
  EXPECT_STREQ(f.format(-7.6f).getString(), "-8");
  f.setFormat(PbNumericDisplayFormat::AUTOFORMAT, -4, 3);
  EXPECT_STREQ(f.format(1234567.0f).getString(), "1.23e+06");
  EXPECT_STREQ(f.format(0.5f).getString(), "0.5");
  EXPECT_STREQ(f.format(NAN).getString(), "nan");
  EXPECT_STREQ(f.format(-INFINITY).getString(), "-inf");
  f.setFormat(static_cast<PbNumericDisplayFormat::FormatType>(9), 1000, 1000);  // clamped, taken as AUTOFORMAT
  EXPECT_EQ(f.format(1).getLength(), 64);
}

TEST(PbDateFormatMapping, ReadsDatesMapsThemLinearlyAndWritesThemBack) {
  PbDateFormatMapping m;
  float coord = -1;
  EXPECT_EQ(m.getCoordinate("2000-01-11", coord), 1);
  EXPECT_FLOAT_EQ(coord, 10);
  EXPECT_EQ(m.getCoordinate("2000-01-01 12:00", coord), 1);
  EXPECT_FLOAT_EQ(coord, 0.5f);
  coord = -1;
  for (const char* bad : {"2000-13-01", "2001-02-29", "2000-1-1", "2000-01-01x", "01/01/2000", ""}) {
    EXPECT_EQ(m.getCoordinate(bad, coord), 0) << bad;
  }
  EXPECT_EQ(coord, -1);
  EXPECT_EQ(m.getCoordinate(" 2000-02-29 23:59:59 ", coord), 1);

  EXPECT_EQ(m.setDateMapping("2024-03-01", "2024-03-01", 0, 1), 0);  // the same date twice
  EXPECT_EQ(m.setDateMapping("2024-03-01", "2024-03-31", 0, 30), 1);
  EXPECT_STREQ(m.getDate(29.5f).getString(), "2024-03-30");
  EXPECT_EQ(m.setFormat("%d.%m.%Y %H:%M:%S %%"), 1);
  EXPECT_STREQ(m.getDate(29.5f).getString(), "30.03.2024 12:00:00 %");
  EXPECT_EQ(m.setFormat("%Q"), 0);
  EXPECT_EQ(m.setFormat("100%"), 0);
  EXPECT_STREQ(m.getFormat().getString(), "%d.%m.%Y %H:%M:%S %%");
  EXPECT_STREQ(m.getDate(NAN).getString(), "");
  EXPECT_STREQ(m.getDate(1e30f).getString(), "");

  PbDateFormatMapping partly("1999-12-31", "nonsense", 0, 1, "%Y");
  EXPECT_EQ(partly.getCoordinate("2000-01-02", coord), 1);
  EXPECT_FLOAT_EQ(coord, 1);  // the default mapping
  EXPECT_STREQ(partly.getFormat().getString(), "%Y");
}

namespace {
std::vector<std::string> events;
void pre(void* data, PoBase* node) {
  events.push_back(std::string("pre ") + static_cast<const char*>(data) + (node->isBuilt() ? " built" : ""));
}
void post(void* data, PoBase* node) {
  events.push_back(std::string("post ") + static_cast<const char*>(data) + (node->isModified() ? " modified" : ""));
}
void retouch(void*, PoBase* node) {
  events.push_back("retouch");
  node->touchKit();  // asks for a rebuild while one runs
}
}  // namespace

TEST(PoBase, ARebuildCallsPreCallbacksBuildsAndCallsPostCallbacks) {
  PoTavrel::init();
  events.clear();
  PoRectangle* r = new PoRectangle;
  r->ref();
  EXPECT_TRUE(r->isModified());
  EXPECT_FALSE(r->isBuilt());
  r->addPreRebuildCallback(pre, const_cast<char*>("a"));
  r->addPreRebuildCallback(pre, const_cast<char*>("b"));
  r->addPostRebuildCallback(post, const_cast<char*>("c"));
  r->addPreRebuildCallback(retouch, nullptr);
  r->rebuild();
  EXPECT_EQ(events, (std::vector<std::string>{"pre a", "pre b", "retouch", "post c"}));
  EXPECT_EQ(r->getBuildCount(), 1);
  EXPECT_TRUE(r->isBuilt());
  EXPECT_FALSE(r->isModified());  // the retouch during the rebuild came before the flags were cleared

  r->addPreRebuildCallback(nullptr, nullptr);  // removes the pre-rebuild callbacks
  events.clear();
  r->touchKit();
  EXPECT_EQ(events, (std::vector<std::string>{"post c"}));

  // On action: a change waits for a render traversal.
  r->setUpdateMethod(PoBase::UPDATEMETHODONACTION);
  r->touchKit();
  EXPECT_EQ(r->getBuildCount(), 2);
  EXPECT_TRUE(r->isModified());
  SoGLRenderAction render;
  render.apply(r);
  EXPECT_EQ(r->getBuildCount(), 3);
  render.apply(r);
  EXPECT_EQ(r->getBuildCount(), 3);
  r->unref();
}

TEST(PoBase, AConnectedDomainsChangeRebuildsTheNodeAtItsNextTraversal) {
  PoTavrel::init();
  PbDomain domain(0, 0, 2, 4, PbDomain::ASIS);
  PoRectangle* r = new PoRectangle;
  r->ref();
  r->setDomain(&domain);  // immediate: built at once
  ASSERT_EQ(r->getOutline().size(), 5u);
  EXPECT_EQ(r->getOutline()[2], SbVec3f(0.5f, 0.25f, 0));
  SoGLRenderAction render;
  domain.setDomain(0, 0, 1, 1, PbDomain::ASIS);
  render.apply(r);
  EXPECT_EQ(r->getBuildCount(), 2);
  EXPECT_EQ(r->getOutline()[2], SbVec3f(1, 1, 0));

  domain.enableConnection(0);
  domain.setDomain(0, 0, 4, 4, PbDomain::ASIS);
  render.apply(r);
  EXPECT_EQ(r->getBuildCount(), 2);
  r->unref();
}

// A render shares a node's drawing with the picture instead of copying it: the
// picture still shows what it showed after the node is rebuilt, until the next
// apply draws the new build.
TEST(SoGLRenderAction, APictureKeepsTheDrawingItShowedWhenTheNodeIsRebuilt) {
  PoTavrel::init();
  const SbVec2f points[] = {SbVec2f(0, 0), SbVec2f(1, 2)};
  PoCurve* curve = new PoCurve(2, points);
  curve->ref();
  SoGLRenderAction render;
  render.apply(curve);
  const std::string first = render.toSvg();
  ASSERT_NE(first.find("<polyline"), std::string::npos);
  PbDomain domain(0, 0, 2, 4, PbDomain::ASIS);
  curve->setDomain(&domain);  // rebuilt at once, its points mapped
  EXPECT_EQ(render.toSvg(), first);
  render.apply(curve);
  const std::string second = render.toSvg();
  EXPECT_NE(second, first);
  render.apply(curve);  // nothing rebuilt: the same picture
  EXPECT_EQ(render.toSvg(), second);
  curve->unref();
  EXPECT_EQ(render.toSvg(), second) << "the picture keeps the drawing past its node";
}
