// Debug lines through the binding core's PRINTDBG, which takes its text as a
// char*: the line is handed over in a writable copy of its own.
#pragma once

#include <CorvelJNI/DebugOutput.h>

#include <cstddef>
#include <cstring>

namespace tavrel {

template <std::size_t N>
inline void printDebug(const char (&text)[N]) {
  char line[N];
  std::memcpy(line, text, N);
  PRINTDBG(line);
}

}  // namespace tavrel
