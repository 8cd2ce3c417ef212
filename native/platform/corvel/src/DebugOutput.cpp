#include <CorvelJNI/DebugOutput.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

namespace {
corvel::DebugMode initialMode() {
  const char* v = std::getenv("KESTRUM_DEBUG");
  return (v != nullptr && std::strcmp(v, "1") == 0) ? corvel::DebugMode::StandardError : corvel::DebugMode::Off;
}

std::atomic<corvel::DebugMode> mode{initialMode()};
std::mutex captureMutex;
std::vector<std::string> captured;
}  // namespace

void PRINTDBG(char* text) {
  switch (mode.load(std::memory_order_relaxed)) {
    case corvel::DebugMode::Off:
      return;
    case corvel::DebugMode::StandardError:
      std::fputs(text, stderr);
      return;
    case corvel::DebugMode::Capture: {
      std::lock_guard<std::mutex> lock(captureMutex);
      captured.emplace_back(text);
      return;
    }
  }
}

namespace corvel {
void setDebugMode(DebugMode m) { mode.store(m); }
DebugMode getDebugMode() { return mode.load(); }

std::vector<std::string> takeCapturedDebugLines() {
  std::lock_guard<std::mutex> lock(captureMutex);
  std::vector<std::string> lines;
  lines.swap(captured);
  return lines;
}
}  // namespace corvel
