// Call journal of the toolkit stand-in.
//
// Every toolkit entry point that the Java binding calls appends one line to
// the journal: the qualified function name and its arguments, for example
//
//   PbMesh::addValuesSet(2, [1, 2.5, 3], PER_NODE, "temperature")
//   PoMeshProbePoint::setMotionCallback(null, null)
//
// Argument rendering:
//   integers       decimal                  42
//   floats         shortest exact form      0.5, 1, -2.25
//   booleans       true / false
//   strings        quoted, or null          "name", null
//   pointers       0x<hex>, or null         0x55d0c0a0, null
//   functions      fn, or null
//   vectors        (x, y[, z])              (1, 2, 3)
//   boxes          <min>..<max>             (0, 0, 0)..(1, 1, 1)
//   arrays         [e0, e1, ...] or null; arrays longer than 8 elements show
//                  their first 8 and then "... n=<count>"
//
// The journal is off by default and costs one relaxed atomic load per call
// while off. Tests switch it on, clear it, and read it back.
//
// Only functions built into the stand-in's libraries record: an inline member
// that recorded would be built into the product, which would then need the
// journal's symbols and not load against the real toolkit.
#pragma once

#include <Corvel/StandIn.h>

#include <atomic>
#include <string>
#include <vector>

class CallJournal {
 public:
  TAVREL_STANDIN_ONLY static bool enabled() noexcept { return s_enabled.load(std::memory_order_relaxed); }
  TAVREL_STANDIN_ONLY static void setEnabled(bool on) noexcept;
  TAVREL_STANDIN_ONLY static void clear();
  TAVREL_STANDIN_ONLY static std::vector<std::string> lines();
  TAVREL_STANDIN_ONLY static void append(std::string line);

  // A function that is also given every line appended (on the appending
  // thread, after the line is stored), or null: lets a test tool put the
  // toolkit's calls in one timeline with calls of its own.
  using Listener = void (*)(const char* line);
  static void setListener(Listener listener) noexcept;

  // Records the call when the journal is on. The check is inlined into the
  // recording function, so that an accessor of the stand-in costs no call
  // while the journal is off; the line is made out of line.
  template <class... Args>
  [[gnu::always_inline]] static void record(const char* function, const Args&... args) {
    if (__builtin_expect(enabled(), 0)) recordLine(function, args...);
  }

  // While one of these lives, the calling thread's lines are dropped: a
  // toolkit object that uses another one inside (a property node and the
  // attribute object it keeps) records only its own entry point.
  class Quiet {
   public:
    Quiet();
    ~Quiet();
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
  };

 private:
  template <class... Args>
  static void recordLine(const char* function, const Args&... args);

  static std::atomic<bool> s_enabled;
  static std::atomic<Listener> s_listener;
};

// --- argument rendering ------------------------------------------------------

void journalFormat(std::string& out, int v);
void journalFormat(std::string& out, long v);
void journalFormat(std::string& out, long long v);
void journalFormat(std::string& out, unsigned v);
void journalFormat(std::string& out, unsigned long v);
void journalFormat(std::string& out, unsigned short v);
void journalFormat(std::string& out, short v);
void journalFormat(std::string& out, float v);
void journalFormat(std::string& out, double v);
void journalFormat(std::string& out, bool v);
void journalFormat(std::string& out, const char* v);
void journalFormat(std::string& out, const std::string& v);
void journalFormat(std::string& out, const void* v);
inline void journalFormat(std::string& out, std::nullptr_t) { out += "null"; }

// A function pointer: "fn" or "null".
struct JournalFn {
  TAVREL_STANDIN_ONLY bool present;
};
template <class F>
JournalFn journalFn(F f) {
  return JournalFn{f != nullptr};
}
void journalFormat(std::string& out, JournalFn f);

// A named enumerator, rendered as its name.
struct JournalName {
  const char* name;
};
void journalFormat(std::string& out, JournalName n);

// An array of known length, or null.
template <class T>
struct JournalArray {
  const T* data;
  long count;
};
template <class T>
JournalArray<T> journalArray(const T* data, long count) {
  return JournalArray<T>{data, count};
}

template <class T>
void journalFormat(std::string& out, const JournalArray<T>& a) {
  if (a.data == nullptr) {
    out += "null";
    return;
  }
  out += '[';
  const long shown = a.count < 8 ? a.count : 8;
  for (long i = 0; i < shown; ++i) {
    if (i) out += ", ";
    journalFormat(out, a.data[i]);
  }
  if (a.count > shown) {
    out += ", ... n=";
    out += std::to_string(a.count);
  }
  out += ']';
}

template <class... Args>
[[gnu::noinline]] void CallJournal::recordLine(const char* function, const Args&... args) {
  std::string line(function);
  line += '(';
  bool first = true;
  [[maybe_unused]] auto one = [&](const auto& a) {
    if (!first) line += ", ";
    first = false;
    journalFormat(line, a);
  };
  (one(args), ...);
  line += ')';
  append(std::move(line));
}
