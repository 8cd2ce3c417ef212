// A name: an immutable character string used for type and node names.
#pragma once

#include <string>

class SbString;

class SbName {
 public:
  SbName() = default;
  SbName(const char* s) : text(s ? s : "") {}       // NOLINT: implicit like the toolkit's
  SbName(const SbString& s);                         // NOLINT
  SbName(const std::string& s) : text(s) {}         // NOLINT

  const char* getString() const { return text.c_str(); }
  int getLength() const { return static_cast<int>(text.size()); }
  bool operator==(const SbName& o) const { return text == o.text; }
  bool operator!=(const SbName& o) const { return text != o.text; }
  bool operator!() const { return text.empty(); }

 private:
  std::string text;
};

void journalFormat(std::string& out, const SbName& s);
