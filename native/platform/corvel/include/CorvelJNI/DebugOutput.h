// Debug output of the Java bindings.
//
// PRINTDBG hands one line (with its own trailing newline) to the debug
// output. The output is off unless switched on: by the environment variable
// KESTRUM_DEBUG=1 at load time (lines go to standard error), or from Java
// (com.kestrum.corvel.misc.DebugOutput), which can also capture the lines in
// memory and read them back.
#pragma once

#include <string>
#include <vector>

void PRINTDBG(char* text);

namespace corvel {
enum class DebugMode { Off = 0, StandardError = 1, Capture = 2 };
void setDebugMode(DebugMode mode);
DebugMode getDebugMode();
// The captured lines (Capture mode), oldest first; the capture is emptied.
std::vector<std::string> takeCapturedDebugLines();
}  // namespace corvel
