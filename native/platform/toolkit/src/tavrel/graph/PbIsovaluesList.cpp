// PbIsovaluesList and PbMiscTextAttr.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbMiscTextAttr.h>

#include <algorithm>

#if defined(__SSE__)
#include <xmmintrin.h>
#endif

// --- PbIsovaluesList -------------------------------------------------------------

PbIsovaluesList::PbIsovaluesList() { CallJournal::record("PbIsovaluesList::PbIsovaluesList"); }

PbIsovaluesList::PbIsovaluesList(const PbIsovaluesList& other)
    : PbBase(other),
      isovalues(other.isovalues),
      minValue(other.minValue),
      maxValue(other.maxValue),
      stepValue(other.stepValue),
      regularList(other.regularList) {
  CallJournal::record("PbIsovaluesList::PbIsovaluesList(copy)", static_cast<const void*>(&other));
}

PbIsovaluesList::PbIsovaluesList(float min, float max, int num) {
  CallJournal::record("PbIsovaluesList::PbIsovaluesList", min, max, num);
  regular(min, max, num);
}

PbIsovaluesList::~PbIsovaluesList() = default;

int PbIsovaluesList::operator==(const PbIsovaluesList& other) const {
  CallJournal::record("PbIsovaluesList::operator==", static_cast<const void*>(&other));
  return isovalues == other.isovalues && minValue == other.minValue && maxValue == other.maxValue &&
         stepValue == other.stepValue && regularList == other.regularList;
}

namespace {
// The first zero among the values (of its sign); the values hold one.
float firstZero(int n, const float* values) {
  for (int i = 0; i < n; ++i)
    if (values[i] == 0.0f) return values[i];
  return 0.0f;
}

// Smallest and largest of n values, as a loop over them in order would find them taking a
// value only when it is strictly smaller (larger) than the one kept: a NaN first is kept, a
// later NaN is passed over, and of equal values the first is kept (which only tells +0 from
// -0). 0 and 0 for none. Long lists are scanned four lanes at a time: minps(v, m) is
// exactly "v < m ? v : m" in each lane, and the lanes' answers can differ from the loop's
// only in the sign of a zero, which is then taken from the first zero of the list.
void rangeOf(int n, const float* values, float& min, float& max) {
  min = max = 0.0f;
  if (n <= 0) return;
  min = max = values[0];
  int i = 1;
#if defined(__SSE__)
  if (n >= 32) {
    const __m128 first = _mm_set1_ps(values[0]);
    __m128 lo0 = first, lo1 = first, lo2 = first, lo3 = first;
    __m128 hi0 = first, hi1 = first, hi2 = first, hi3 = first;
    for (; i + 16 <= n; i += 16) {
      const __m128 v0 = _mm_loadu_ps(values + i), v1 = _mm_loadu_ps(values + i + 4);
      const __m128 v2 = _mm_loadu_ps(values + i + 8), v3 = _mm_loadu_ps(values + i + 12);
      lo0 = _mm_min_ps(v0, lo0);
      lo1 = _mm_min_ps(v1, lo1);
      lo2 = _mm_min_ps(v2, lo2);
      lo3 = _mm_min_ps(v3, lo3);
      hi0 = _mm_max_ps(v0, hi0);
      hi1 = _mm_max_ps(v1, hi1);
      hi2 = _mm_max_ps(v2, hi2);
      hi3 = _mm_max_ps(v3, hi3);
    }
    alignas(16) float lanes[2][16];
    _mm_store_ps(lanes[0], lo0);
    _mm_store_ps(lanes[0] + 4, lo1);
    _mm_store_ps(lanes[0] + 8, lo2);
    _mm_store_ps(lanes[0] + 12, lo3);
    _mm_store_ps(lanes[1], hi0);
    _mm_store_ps(lanes[1] + 4, hi1);
    _mm_store_ps(lanes[1] + 8, hi2);
    _mm_store_ps(lanes[1] + 12, hi3);
    for (int l = 0; l < 16; ++l) {
      if (lanes[0][l] < min) min = lanes[0][l];
      if (lanes[1][l] > max) max = lanes[1][l];
    }
  }
#endif
  for (; i < n; ++i) {
    if (values[i] < min) min = values[i];
    if (values[i] > max) max = values[i];
  }
  if (min == 0.0f) min = firstZero(n, values);
  if (max == 0.0f) max = firstZero(n, values);
}
}  // namespace

void PbIsovaluesList::setRegularIsoList(int numValues, const float* values, int num) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", numValues, journalArray(values, std::max(numValues, 0)),
                      num);
  float min, max;
  rangeOf(numValues, values, min, max);
  regular(min, max, num);
}

void PbIsovaluesList::setRegularIsoList(int numValues, const float* values) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", numValues, journalArray(values, std::max(numValues, 0)));
  float min, max;
  rangeOf(numValues, values, min, max);
  regular(min, max, static_cast<int>(isovalues.size()));
}

void PbIsovaluesList::setRegularIsoList(int num, float origin, float step) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", num, origin, step);
  num = std::max(num, 0);
  regular(origin, origin + static_cast<float>(num > 0 ? num - 1 : 0) * step, num);
  stepValue = num > 1 ? step : 0.0f;
  for (int i = 0; i < num; ++i) isovalues[static_cast<std::size_t>(i)] = origin + static_cast<float>(i) * step;
}

void PbIsovaluesList::setRegularIsoList(float min, float max, int num) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", min, max, num);
  regular(min, max, num);
}

void PbIsovaluesList::setRegularIsoList(float min, float max) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", min, max);
  regular(min, max, static_cast<int>(isovalues.size()));
}

void PbIsovaluesList::setRegularIsoList(int num) {
  CallJournal::record("PbIsovaluesList::setRegularIsoList", num);
  regular(minValue, maxValue, num);
}

void PbIsovaluesList::setIrregularIsoList(int num, const float* values) {
  CallJournal::record("PbIsovaluesList::setIrregularIsoList", num, journalArray(values, std::max(num, 0)));
  num = std::max(num, 0);
  isovalues.assign(values, values + num);
  rangeOf(num, values, minValue, maxValue);
  stepValue = 0.0f;
  regularList = 0;
  changed();
}

const float* PbIsovaluesList::getIsoList(int& num, float& min, float& max, float& step, SbBool& isRegular) const {
  CallJournal::record("PbIsovaluesList::getIsoList");
  num = static_cast<int>(isovalues.size());
  min = minValue;
  max = maxValue;
  step = stepValue;
  isRegular = regularList;
  // A vector without elements may have no storage: an empty list still gives
  // a valid pointer.
  static const float none[1] = {0.0f};
  return isovalues.empty() ? none : isovalues.data();
}

void PbIsovaluesList::regular(float min, float max, int num) {
  num = std::max(num, 0);
  isovalues.assign(static_cast<std::size_t>(num), 0.0f);
  stepValue = num > 1 ? (max - min) / static_cast<float>(num - 1) : 0.0f;
  for (int i = 0; i < num; ++i) isovalues[static_cast<std::size_t>(i)] = min + static_cast<float>(i) * stepValue;
  if (num > 1) isovalues.back() = max;
  minValue = min;
  maxValue = max;
  regularList = 1;
  changed();
}

// --- PbMiscTextAttr ----------------------------------------------------------------

PbMiscTextAttr::PbMiscTextAttr() : fontName("Sans") { CallJournal::record("PbMiscTextAttr::PbMiscTextAttr"); }

PbMiscTextAttr::PbMiscTextAttr(const PbMiscTextAttr& other)
    : PbBase(other),
      fontName(other.fontName),
      lineLengthType(other.lineLengthType),
      lineLength(other.lineLength),
      profile(other.profile),
      predefinedProfile(other.predefinedProfile) {
  CallJournal::record("PbMiscTextAttr::PbMiscTextAttr(copy)", static_cast<const void*>(&other));
}

PbMiscTextAttr::~PbMiscTextAttr() = default;

void PbMiscTextAttr::setFontName(const SbString& name) {
  CallJournal::record("PbMiscTextAttr::setFontName", name);
  fontName = name;
  changed();
}

void PbMiscTextAttr::setLineLength(char type, int length) {
  CallJournal::record("PbMiscTextAttr::setLineLength", static_cast<int>(type), length);
  lineLengthType = type;
  lineLength = length;
  changed();
}

void PbMiscTextAttr::enableProfile(SbBool flag) {
  CallJournal::record("PbMiscTextAttr::enableProfile", flag);
  profile = flag;
  changed();
}

void PbMiscTextAttr::enablePredefinedProfile(SbBool flag) {
  CallJournal::record("PbMiscTextAttr::enablePredefinedProfile", flag);
  predefinedProfile = flag;
  changed();
}
