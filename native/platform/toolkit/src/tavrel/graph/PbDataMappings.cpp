// The data mappings: PbDataMapping, PbLinearDataMapping,
// PbNonLinearDataMapping and PbNonLinearDataMapping2.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PbNonLinearDataMapping.h>
#include <Tavrel/PbNonLinearDataMapping2.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
// Three floats of an HLS colour for the journal.
JournalArray<float> hlsOf(const float* hls) { return journalArray(hls, 3); }

SbColor mix(const SbColor& a, const SbColor& b, float t) { return SbColor(a + (b - a) * t); }

float hueComponent(float m1, float m2, float hue) {
  hue = std::fmod(hue, 360.0f);
  if (hue < 0) hue += 360.0f;
  if (hue < 60.0f) return m1 + (m2 - m1) * hue / 60.0f;
  if (hue < 180.0f) return m2;
  if (hue < 240.0f) return m1 + (m2 - m1) * (240.0f - hue) / 60.0f;
  return m1;
}
}  // namespace

// --- PbDataMapping --------------------------------------------------------------

PbDataMapping::~PbDataMapping() = default;

SbColor PbDataMapping::hlsToRgb(const float* hls) {
  const float h = hls[0], l = hls[1], s = hls[2];
  if (s == 0.0f) return SbColor(l, l, l);
  const float m2 = l <= 0.5f ? l * (1 + s) : l + s - l * s;
  const float m1 = 2 * l - m2;
  return SbColor(hueComponent(m1, m2, h + 120.0f), hueComponent(m1, m2, h), hueComponent(m1, m2, h - 120.0f));
}

void PbDataMapping::rgbToHls(const SbColor& rgb, float* hls) {
  const float r = rgb[0], g = rgb[1], b = rgb[2];
  const float max = std::max(r, std::max(g, b));
  const float min = std::min(r, std::min(g, b));
  const float l = (max + min) / 2;
  float h = 0.0f, s = 0.0f;
  const float delta = max - min;
  if (delta != 0.0f) {
    s = l <= 0.5f ? delta / (max + min) : delta / (2 - max - min);
    if (r == max) {
      h = (g - b) / delta;
    } else if (g == max) {
      h = 2 + (b - r) / delta;
    } else {
      h = 4 + (r - g) / delta;
    }
    h *= 60.0f;
    if (h < 0) h += 360.0f;
  }
  hls[0] = h;
  hls[1] = l;
  hls[2] = s;
}

SbColor PbDataMapping::colorOf(float value, float* transparency) const {
  float t = 0.0f;
  SbColor color;
  if (minThreshold.enabled && value < minThreshold.value) {
    color = minThreshold.color;
    t = minThreshold.transparency;
  } else if (maxThreshold.enabled && value > maxThreshold.value) {
    color = maxThreshold.color;
    t = maxThreshold.transparency;
  } else {
    color = mappedColor(value, t);
  }
  if (transparency != nullptr) *transparency = t;
  return color;
}

const float* PbDataMapping::getHLSColor(float value) const {
  CallJournal::record("PbDataMapping::getHLSColor", value);
  rgbToHls(colorOf(value), hlsResult);
  return hlsResult;
}

void PbDataMapping::setMinThreshold(float threshold) {
  CallJournal::record("PbDataMapping::setMinThreshold", threshold);
  minThreshold.value = threshold;
  changed();
}

void PbDataMapping::setMaxThreshold(float threshold) {
  CallJournal::record("PbDataMapping::setMaxThreshold", threshold);
  maxThreshold.value = threshold;
  changed();
}

void PbDataMapping::setMinThreshold(float threshold, const SbColor& color, float transparency) {
  CallJournal::record("PbDataMapping::setMinThreshold", threshold, color, transparency);
  minThreshold.value = threshold;
  minThreshold.color = color;
  minThreshold.transparency = transparency;
  changed();
}

void PbDataMapping::setMinThreshold(float threshold, float* hls, float transparency) {
  CallJournal::record("PbDataMapping::setMinThreshold", threshold, hlsOf(hls), transparency);
  minThreshold.value = threshold;
  minThreshold.color = hlsToRgb(hls);
  minThreshold.transparency = transparency;
  changed();
}

void PbDataMapping::setMaxThreshold(float threshold, const SbColor& color, float transparency) {
  CallJournal::record("PbDataMapping::setMaxThreshold", threshold, color, transparency);
  maxThreshold.value = threshold;
  maxThreshold.color = color;
  maxThreshold.transparency = transparency;
  changed();
}

void PbDataMapping::setMaxThreshold(float threshold, float* hls, float transparency) {
  CallJournal::record("PbDataMapping::setMaxThreshold", threshold, hlsOf(hls), transparency);
  maxThreshold.value = threshold;
  maxThreshold.color = hlsToRgb(hls);
  maxThreshold.transparency = transparency;
  changed();
}

void PbDataMapping::enableThresholds(SbBool min, SbBool max) {
  CallJournal::record("PbDataMapping::enableThresholds", min, max);
  minThreshold.enabled = min;
  maxThreshold.enabled = max;
  changed();
}

void PbDataMapping::enableTransparency(SbBool flag) {
  CallJournal::record("PbDataMapping::enableTransparency", flag);
  transparencyEnabled = flag;
  changed();
}

void PbDataMapping::setTransparencyValueDeletedParts(float value) {
  CallJournal::record("PbDataMapping::setTransparencyValueDeletedParts", value);
  deletedPartsTransparency = value;
  changed();
}

float PbDataMapping::getTransparencyValueDeletedParts() const {
  CallJournal::record("PbDataMapping::getTransparencyValueDeletedParts");
  return deletedPartsTransparency;
}

// --- PbLinearDataMapping ----------------------------------------------------------

PbLinearDataMapping::PbLinearDataMapping() { CallJournal::record("PbLinearDataMapping::PbLinearDataMapping"); }

PbLinearDataMapping::PbLinearDataMapping(const PbLinearDataMapping& other)
    : PbDataMapping(other), end1(other.end1), end2(other.end2) {
  CallJournal::record("PbLinearDataMapping::PbLinearDataMapping(copy)", static_cast<const void*>(&other));
}

PbLinearDataMapping::~PbLinearDataMapping() = default;

void PbLinearDataMapping::setValues(float value1, const SbColor& color1, float value2, const SbColor& color2) {
  CallJournal::record("PbLinearDataMapping::setValues", value1, color1, value2, color2);
  end1 = End{value1, color1, 0.0f};
  end2 = End{value2, color2, 0.0f};
  changed();
}

void PbLinearDataMapping::setValues(float value1, const SbColor& color1, float transparency1, float value2,
                                    const SbColor& color2, float transparency2) {
  CallJournal::record("PbLinearDataMapping::setValues", value1, color1, transparency1, value2, color2,
                      transparency2);
  end1 = End{value1, color1, transparency1};
  end2 = End{value2, color2, transparency2};
  changed();
}

void PbLinearDataMapping::setValues(float value1, const float* hls1, float value2, const float* hls2) {
  CallJournal::record("PbLinearDataMapping::setValues", value1, hlsOf(hls1), value2, hlsOf(hls2));
  end1 = End{value1, hlsToRgb(hls1), 0.0f};
  end2 = End{value2, hlsToRgb(hls2), 0.0f};
  changed();
}

void PbLinearDataMapping::setValues(float value1, const float* hls1, float transparency1, float value2,
                                    const float* hls2, float transparency2) {
  CallJournal::record("PbLinearDataMapping::setValues", value1, hlsOf(hls1), transparency1, value2, hlsOf(hls2),
                      transparency2);
  end1 = End{value1, hlsToRgb(hls1), transparency1};
  end2 = End{value2, hlsToRgb(hls2), transparency2};
  changed();
}

void PbLinearDataMapping::getValues(float& value1, SbColor& color1, float& value2, SbColor& color2) const {
  CallJournal::record("PbLinearDataMapping::getValues(rgb)");
  value1 = end1.value;
  color1 = end1.color;
  value2 = end2.value;
  color2 = end2.color;
}

void PbLinearDataMapping::getValues(float& value1, SbColor& color1, float& transparency1, float& value2,
                                    SbColor& color2, float& transparency2) const {
  CallJournal::record("PbLinearDataMapping::getValues(rgba)");
  value1 = end1.value;
  color1 = end1.color;
  transparency1 = end1.transparency;
  value2 = end2.value;
  color2 = end2.color;
  transparency2 = end2.transparency;
}

void PbLinearDataMapping::getValues(float& value1, float* hls1, float& value2, float* hls2) const {
  CallJournal::record("PbLinearDataMapping::getValues(hls)");
  value1 = end1.value;
  rgbToHls(end1.color, hls1);
  value2 = end2.value;
  rgbToHls(end2.color, hls2);
}

void PbLinearDataMapping::getValues(float& value1, float* hls1, float& transparency1, float& value2, float* hls2,
                                    float& transparency2) const {
  CallJournal::record("PbLinearDataMapping::getValues(hlsa)");
  value1 = end1.value;
  rgbToHls(end1.color, hls1);
  transparency1 = end1.transparency;
  value2 = end2.value;
  rgbToHls(end2.color, hls2);
  transparency2 = end2.transparency;
}

SbColor PbLinearDataMapping::mappedColor(float value, float& transparency) const {
  const bool ordered = end1.value <= end2.value;
  const End& low = ordered ? end1 : end2;
  const End& high = ordered ? end2 : end1;
  const End* end = nullptr;
  if (low.value == high.value) {
    end = value < low.value ? &end1 : &end2;
  } else if (!(value > low.value)) {
    end = &low;
  } else if (value >= high.value) {
    end = &high;
  }
  if (end != nullptr) {
    transparency = end->transparency;
    return end->color;
  }
  const float t = (value - low.value) / (high.value - low.value);
  transparency = low.transparency + (high.transparency - low.transparency) * t;
  return mix(low.color, high.color, t);
}

// --- PbNonLinearDataMapping ---------------------------------------------------------

PbNonLinearDataMapping::PbNonLinearDataMapping() {
  CallJournal::record("PbNonLinearDataMapping::PbNonLinearDataMapping");
}

PbNonLinearDataMapping::~PbNonLinearDataMapping() = default;

SbColor PbNonLinearDataMapping::mappedColor(float, float& transparency) const {
  transparency = 0.0f;
  return SbColor(0, 0, 0);
}

// --- PbNonLinearDataMapping2 ----------------------------------------------------------

PbNonLinearDataMapping2::PbNonLinearDataMapping2() {
  CallJournal::record("PbNonLinearDataMapping2::PbNonLinearDataMapping2");
}

PbNonLinearDataMapping2::PbNonLinearDataMapping2(const PbNonLinearDataMapping2& other)
    : PbDataMapping(other),
      type(other.type),
      values(other.values),
      numColors(other.numColors),
      colors(other.colors),
      transparencies(other.transparencies) {
  CallJournal::record("PbNonLinearDataMapping2::PbNonLinearDataMapping2(copy)", static_cast<const void*>(&other));
}

PbNonLinearDataMapping2::~PbNonLinearDataMapping2() = default;

namespace {
// The count of colours a type needs for num values (num from 0 to INT_MAX - 1).
int colorCount(PbNonLinearDataMapping2::Type type, int num) {
  return type == PbNonLinearDataMapping2::LINEARPERLEVEL ? num : num + 1;
}

int valueCount(int num) { return std::min(std::max(num, 0), std::numeric_limits<int>::max() - 1); }
}  // namespace

void PbNonLinearDataMapping2::setValues(Type type, int num, const float* values, const SbColor* colors) {
  const int count = valueCount(num);
  CallJournal::record("PbNonLinearDataMapping2::setValues", static_cast<int>(type), num, journalArray(values, count),
                      journalArray(colors, colorCount(type, count)));
  set(type, num, values, colors, nullptr);
}

void PbNonLinearDataMapping2::setValues(Type type, int num, const float* values, const SbColor* colors,
                                        const float* transparency) {
  const int count = valueCount(num);
  CallJournal::record("PbNonLinearDataMapping2::setValues", static_cast<int>(type), num, journalArray(values, count),
                      journalArray(colors, colorCount(type, count)),
                      journalArray(transparency, colorCount(type, count)));
  set(type, num, values, colors, transparency);
}

void PbNonLinearDataMapping2::set(Type newType, int num, const float* newValues, const SbColor* newColors,
                                  const float* transparency) {
  num = valueCount(num);
  type = newType;
  numColors = colorCount(newType, num);
  // New vectors, so that the lists are freed and made again (as documented).
  values = newValues != nullptr ? std::vector<float>(newValues, newValues + num) : std::vector<float>();
  colors = newColors != nullptr ? std::vector<SbColor>(newColors, newColors + numColors) : std::vector<SbColor>();
  transparencies = transparency != nullptr ? std::vector<float>(transparency, transparency + numColors)
                                           : std::vector<float>();
  changed();
}

SbColor PbNonLinearDataMapping2::mappedColor(float value, float& transparency) const {
  const int num = getNumValues();
  auto colorAt = [this](int i, float& t) {
    const auto k = static_cast<std::size_t>(i);
    t = k < transparencies.size() ? transparencies[k] : 0.0f;
    return k < colors.size() ? colors[k] : SbColor(0, 0, 0);
  };
  if (type != LINEARPERLEVEL) {
    int level = 0;
    while (level < num && value >= values[static_cast<std::size_t>(level)]) ++level;
    return colorAt(level, transparency);
  }
  if (num == 0 || !(value > values.front())) return colorAt(0, transparency);
  if (value >= values.back()) return colorAt(num - 1, transparency);
  int i = 1;
  while (value >= values[static_cast<std::size_t>(i)]) ++i;
  const float v0 = values[static_cast<std::size_t>(i - 1)];
  const float v1 = values[static_cast<std::size_t>(i)];
  const float t = v1 > v0 ? (value - v0) / (v1 - v0) : 0.0f;
  float t0 = 0.0f;
  float t1 = 0.0f;
  const SbColor c0 = colorAt(i - 1, t0);
  const SbColor c1 = colorAt(i, t1);
  transparency = t0 + (t1 - t0) * t;
  return mix(c0, c1, t);
}
