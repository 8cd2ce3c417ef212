// PbIsovaluesList and PbMiscTextAttr.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbMiscTextAttr.h>

#include <algorithm>

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
// Smallest and largest of n values; 0 and 0 for none.
void rangeOf(int n, const float* values, float& min, float& max) {
  min = max = 0.0f;
  for (int i = 0; i < n; ++i) {
    if (i == 0 || values[i] < min) min = values[i];
    if (i == 0 || values[i] > max) max = values[i];
  }
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
