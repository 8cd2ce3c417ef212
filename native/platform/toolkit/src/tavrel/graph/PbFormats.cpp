// PbNumericDisplayFormat and PbDateFormatMapping.

#include <Corvel/CallJournal.h>
#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PbNumericDisplayFormat.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

// --- PbNumericDisplayFormat ----------------------------------------------------------

PbNumericDisplayFormat::PbNumericDisplayFormat(FormatType type, int width, int precision)
    : formatType(type), formatWidth(width), formatPrecision(precision) {
  CallJournal::record("PbNumericDisplayFormat::PbNumericDisplayFormat", static_cast<int>(type), width, precision);
}

PbNumericDisplayFormat::PbNumericDisplayFormat(const PbNumericDisplayFormat& other)
    : PbBase(other),
      formatType(other.formatType),
      formatWidth(other.formatWidth),
      formatPrecision(other.formatPrecision) {
  CallJournal::record("PbNumericDisplayFormat::PbNumericDisplayFormat(copy)", static_cast<const void*>(&other));
}

void PbNumericDisplayFormat::setFormat(FormatType type, int width, int precision) {
  CallJournal::record("PbNumericDisplayFormat::setFormat", static_cast<int>(type), width, precision);
  formatType = type;
  formatWidth = width;
  formatPrecision = precision;
  changed();
}

SbString PbNumericDisplayFormat::format(float value) const {
  const int width = std::min(std::max(formatWidth, 0), 64);
  const int precision = std::min(std::max(formatPrecision, 0), 16);
  char text[128];
  if (std::isnan(value)) {
    std::snprintf(text, sizeof text, "%*s", width, "nan");
  } else if (std::isinf(value)) {
    std::snprintf(text, sizeof text, "%*s", width, value < 0 ? "-inf" : "inf");
  } else if (formatType == FLOATFORMAT) {
    std::snprintf(text, sizeof text, "%*.*f", width, precision, static_cast<double>(value));
  } else if (formatType == INTEGERFORMAT) {
    std::snprintf(text, sizeof text, "%*.0f", width, static_cast<double>(value));
  } else {
    std::snprintf(text, sizeof text, "%*.*g", width, std::max(precision, 1), static_cast<double>(value));
  }
  return SbString(text);
}

// --- dates -----------------------------------------------------------------------------

namespace {
// Days since 1970-01-01 of a proleptic Gregorian date.
long long daysFromCivil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}

// The date of a day since 1970-01-01.
void civilFromDays(long long z, long long& y, unsigned& m, unsigned& d) {
  z += 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = doy - (153 * mp + 2) / 5 + 1;
  m = mp < 10 ? mp + 3 : mp - 9;
  y = static_cast<long long>(yoe) + era * 400 + (m <= 2);
}

bool leap(long long y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

unsigned daysIn(long long y, unsigned m) {
  static const unsigned days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && leap(y) ? 29 : days[m - 1];
}

// Reads exactly `count` digits at p.
bool digits(const char*& p, int count, long long& value) {
  value = 0;
  for (int i = 0; i < count; ++i, ++p) {
    if (*p < '0' || *p > '9') return false;
    value = value * 10 + (*p - '0');
  }
  return true;
}

bool literal(const char*& p, char c) {
  if (*p != c) return false;
  ++p;
  return true;
}

void skipSpaces(const char*& p) {
  while (*p == ' ') ++p;
}

// The smallest and largest seconds of the years 1 to 9999.
const double kFirstSecond = static_cast<double>(daysFromCivil(1, 1, 1)) * 86400.0;
const double kEndSecond = static_cast<double>(daysFromCivil(10000, 1, 1)) * 86400.0;

bool validFormat(const char* format) {
  for (const char* p = format; *p != '\0'; ++p) {
    if (*p != '%') continue;
    ++p;
    if (*p == '\0' || std::strchr("YmdHMS%", *p) == nullptr) return false;
  }
  return true;
}
}  // namespace

bool PbDateFormatMapping::readDate(const char* text, double& seconds) {
  if (text == nullptr) return false;
  const char* p = text;
  skipSpaces(p);
  long long year, month, day, hour = 0, minute = 0, second = 0;
  if (!digits(p, 4, year) || !literal(p, '-') || !digits(p, 2, month) || !literal(p, '-') || !digits(p, 2, day))
    return false;
  if (*p == ' ' && p[1] >= '0' && p[1] <= '9') {
    ++p;
    if (!digits(p, 2, hour) || !literal(p, ':') || !digits(p, 2, minute)) return false;
    if (*p == ':' && (++p, !digits(p, 2, second))) return false;
  }
  skipSpaces(p);
  if (*p != '\0') return false;
  if (year < 1 || month < 1 || month > 12 || day < 1 || day > daysIn(year, static_cast<unsigned>(month)) ||
      hour > 23 || minute > 59 || second > 59)
    return false;
  seconds = static_cast<double>(daysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day))) *
                86400.0 +
            static_cast<double>(hour * 3600 + minute * 60 + second);
  return true;
}

PbDateFormatMapping::PbDateFormatMapping()
    : firstDate("2000-01-01"), secondDate("2000-01-02"), dateFormat("%Y-%m-%d") {
  CallJournal::record("PbDateFormatMapping::PbDateFormatMapping");
  readDate(firstDate.getString(), seconds1);
  readDate(secondDate.getString(), seconds2);
}

PbDateFormatMapping::PbDateFormatMapping(const PbDateFormatMapping& other)
    : PbBase(other),
      firstDate(other.firstDate),
      secondDate(other.secondDate),
      dateFormat(other.dateFormat),
      seconds1(other.seconds1),
      seconds2(other.seconds2),
      coordinate1(other.coordinate1),
      coordinate2(other.coordinate2) {
  CallJournal::record("PbDateFormatMapping::PbDateFormatMapping(copy)", static_cast<const void*>(&other));
}

PbDateFormatMapping::PbDateFormatMapping(const char* date1, const char* date2, float coord1, float coord2,
                                         const char* format)
    : firstDate("2000-01-01"), secondDate("2000-01-02"), dateFormat("%Y-%m-%d") {
  CallJournal::record("PbDateFormatMapping::PbDateFormatMapping", date1, date2, coord1, coord2, format);
  readDate(firstDate.getString(), seconds1);
  readDate(secondDate.getString(), seconds2);
  takeMapping(date1, date2, coord1, coord2);
  if (format != nullptr) takeFormat(SbString(format));
}

int PbDateFormatMapping::setDateMapping(const char* date1, const char* date2, float coord1, float coord2) {
  CallJournal::record("PbDateFormatMapping::setDateMapping", date1, date2, coord1, coord2);
  return takeMapping(date1, date2, coord1, coord2) ? 1 : 0;
}

int PbDateFormatMapping::setFormat(const SbString& format) {
  CallJournal::record("PbDateFormatMapping::setFormat", format);
  return takeFormat(format) ? 1 : 0;
}

int PbDateFormatMapping::getCoordinate(const SbString& date, float& coord) const {
  CallJournal::record("PbDateFormatMapping::getCoordinate", date);
  double seconds;
  if (!readDate(date.getString(), seconds)) return 0;
  const double perSecond = (static_cast<double>(coordinate2) - coordinate1) / (seconds2 - seconds1);
  coord = static_cast<float>(coordinate1 + (seconds - seconds1) * perSecond);
  return 1;
}

SbString PbDateFormatMapping::getDate(float coord) const {
  const double perUnit = (seconds2 - seconds1) / (static_cast<double>(coordinate2) - coordinate1);
  // Rounded down to the second (a microsecond short of a second counts as it).
  const double seconds = std::floor(seconds1 + (static_cast<double>(coord) - coordinate1) * perUnit + 1e-6);
  return writeDate(dateFormat, seconds);
}

double PbDateFormatMapping::coordinateOfSeconds(double seconds) const {
  return coordinate1 + (seconds - seconds1) * ((static_cast<double>(coordinate2) - coordinate1) / (seconds2 - seconds1));
}

SbString PbDateFormatMapping::writeDate(const SbString& format, double seconds) {
  if (!std::isfinite(seconds) || seconds < kFirstSecond || seconds >= kEndSecond) return SbString("");
  const long long whole = static_cast<long long>(seconds);
  long long days = whole / 86400;
  long long rest = whole % 86400;
  if (rest < 0) {
    rest += 86400;
    --days;
  }
  long long year;
  unsigned month, day;
  civilFromDays(days, year, month, day);
  std::string out;
  char part[16];
  for (const char* p = format.getString(); *p != '\0'; ++p) {
    if (*p != '%') {
      out += *p;
      continue;
    }
    switch (*++p) {
      case 'Y': std::snprintf(part, sizeof part, "%04lld", year); break;
      case 'm': std::snprintf(part, sizeof part, "%02u", month); break;
      case 'd': std::snprintf(part, sizeof part, "%02u", day); break;
      case 'H': std::snprintf(part, sizeof part, "%02lld", rest / 3600); break;
      case 'M': std::snprintf(part, sizeof part, "%02lld", rest / 60 % 60); break;
      case 'S': std::snprintf(part, sizeof part, "%02lld", rest % 60); break;
      default: std::snprintf(part, sizeof part, "%%"); break;
    }
    out += part;
  }
  return SbString(out);
}

bool PbDateFormatMapping::takeMapping(const char* date1, const char* date2, float coord1, float coord2) {
  double s1, s2;
  if (!readDate(date1, s1) || !readDate(date2, s2) || s1 == s2 || !std::isfinite(coord1) || !std::isfinite(coord2))
    return false;
  firstDate = SbString(date1);
  secondDate = SbString(date2);
  seconds1 = s1;
  seconds2 = s2;
  coordinate1 = coord1;
  coordinate2 = coord2;
  changed();
  return true;
}

bool PbDateFormatMapping::takeFormat(const SbString& format) {
  if (!validFormat(format.getString())) return false;
  dateFormat = format;
  changed();
  return true;
}
