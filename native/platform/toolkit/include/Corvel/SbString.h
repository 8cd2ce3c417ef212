// A text string. The text is kept as UTF-8; the wide-character constructor
// converts from UTF-32 (Linux wchar_t). A null pointer gives the empty string.
#pragma once

#include <Corvel/StandIn.h>

#include <string>

class SbString {
 public:
  SbString() = default;
  SbString(const char* utf8);      // NOLINT: implicit like the toolkit's
  SbString(const wchar_t* text);   // NOLINT
  SbString(const std::string& utf8) : text(utf8) {}  // NOLINT

  TAVREL_STANDIN_ONLY const char* getString() const { return text.c_str(); }
  TAVREL_STANDIN_ONLY int getLength() const { return static_cast<int>(text.size()); }
  bool operator==(const SbString& o) const { return text == o.text; }
  bool operator!=(const SbString& o) const { return text != o.text; }
  SbString& operator+=(const char* s) { text += s; return *this; }

 private:
  std::string text;
};

void journalFormat(std::string& out, const SbString& s);
