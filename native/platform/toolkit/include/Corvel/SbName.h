// A name: an immutable character string used for type and node names.
//
// Names are kept in a table for the whole process, like the toolkit's own:
// the text that getString() returns stays valid after the SbName is gone
// (type names handed out as const char*, for instance), and two names are
// equal exactly when they point to the same table entry.
#pragma once

#include <Corvel/StandIn.h>

#include <string>

class SbString;

class SbName {
 public:
  SbName();                                          // the empty name
  SbName(const char* s);                             // NOLINT: implicit like the toolkit's; null is ""
  SbName(const SbString& s);                         // NOLINT
  SbName(const std::string& s);                      // NOLINT

  TAVREL_ASSUMED const char* getString() const { return text; }
  TAVREL_STANDIN_ONLY int getLength() const;
  bool operator==(const SbName& o) const { return text == o.text; }
  bool operator!=(const SbName& o) const { return text != o.text; }
  bool operator!() const { return *text == '\0'; }

 private:
  static const char* intern(const char* s, std::size_t length);
  const char* text;
};

void journalFormat(std::string& out, const SbName& s);
