// Dates on a graph axis: two reference dates with the coordinates they have,
// which fix a linear mapping between dates and coordinates, and the format
// in which dates are written.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A date is read as "YYYY-MM-DD", optionally followed by " hh:mm" or
//    " hh:mm:ss" (24-hour clock, proleptic Gregorian calendar, no time
//    zone); leading and trailing spaces are allowed, nothing else. Years
//    run from 1 to 9999.
//  - setDateMapping(date1, date2, coord1, coord2) returns 1 and takes the new
//    mapping when both dates can be read, are different and both coordinates
//    are finite; otherwise it returns 0 and changes nothing.
//  - getCoordinate(date, coord) returns 1 and sets coord to the date's
//    coordinate on the line through (date1, coord1) and (date2, coord2) when
//    the date can be read; otherwise it returns 0 and leaves coord alone.
//  - The format writes a date: "%Y" the year (four digits), "%m" the month
//    and "%d" the day (two digits), "%H", "%M", "%S" hours, minutes and
//    seconds (two digits), "%%" a percent sign; other text is copied.
//    setFormat returns 1 and takes the format when it uses only those
//    conversions (and does not end in a lone "%"); otherwise it returns 0
//    and keeps the format it had.
//  - getDate(coord) writes the date of a coordinate with the format (to the
//    second, rounded down); a coordinate outside years 1 to 9999, or not
//    finite, gives the empty string.
//  - A new object maps 2000-01-01 to 0 and 2000-01-02 to 1 (one unit a
//    day), with the format "%Y-%m-%d". The constructor that takes the dates
//    and the format takes each as the two setters would: a part it cannot
//    take stays as in a new object.
//  - The three strings (both dates as given, and the format) are kept; the
//    format is read directly (inline accessor). The destructor is inline.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Tavrel/PbBase.h>

class PbDateFormatMapping : public PbBase {
 public:
  PbDateFormatMapping();
  PbDateFormatMapping(const PbDateFormatMapping& other);
  PbDateFormatMapping(const char* date1, const char* date2, float coord1, float coord2, const char* format);
  ~PbDateFormatMapping() override {}

  int setDateMapping(const char* date1, const char* date2, float coord1, float coord2);
  int setFormat(const SbString& format);
  SbString getFormat() const { return dateFormat; }
  int getCoordinate(const SbString& date, float& coord) const;

  // The date of a coordinate, written with the format.
  TAVREL_STANDIN_ONLY SbString getDate(float coord) const;

  // --- Used inside this toolkit (not journaled) ---
  // Seconds since 1970-01-01 00:00:00 of a date, or false when it cannot be read.
  TAVREL_STANDIN_ONLY static bool readDate(const char* text, double& seconds);
  // The date at those seconds written with the format ("" outside years 1
  // to 9999 or when not finite).
  TAVREL_STANDIN_ONLY static SbString writeDate(const SbString& format, double seconds);
  // The coordinate of a date given in seconds since 1970-01-01 00:00:00.
  TAVREL_STANDIN_ONLY double coordinateOfSeconds(double seconds) const;

 private:
  bool takeMapping(const char* date1, const char* date2, float coord1, float coord2);
  bool takeFormat(const SbString& format);

  SbString firstDate;
  SbString secondDate;
  SbString dateFormat;
  double seconds1 = 0.0;
  double seconds2 = 0.0;
  float coordinate1 = 0.0f;
  float coordinate2 = 1.0f;
};
