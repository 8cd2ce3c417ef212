#include <Corvel/CallJournal.h>

#include <charconv>
#include <cstdio>
#include <mutex>

std::atomic<bool> CallJournal::s_enabled{false};
std::atomic<CallJournal::Listener> CallJournal::s_listener{nullptr};

namespace {
std::mutex& journalMutex() {
  static std::mutex m;
  return m;
}
std::vector<std::string>& journalLines() {
  static std::vector<std::string> lines;
  return lines;
}
}  // namespace

void CallJournal::setEnabled(bool on) noexcept { s_enabled.store(on); }

void CallJournal::setListener(Listener listener) noexcept { s_listener.store(listener); }

void CallJournal::clear() {
  std::lock_guard<std::mutex> lock(journalMutex());
  journalLines().clear();
}

std::vector<std::string> CallJournal::lines() {
  std::lock_guard<std::mutex> lock(journalMutex());
  return journalLines();
}

namespace {
thread_local int quietDepth = 0;
}

CallJournal::Quiet::Quiet() { ++quietDepth; }
CallJournal::Quiet::~Quiet() { --quietDepth; }

void CallJournal::append(std::string line) {
  if (quietDepth > 0) return;
  Listener listener = s_listener.load();
  if (listener != nullptr) listener(line.c_str());
  std::lock_guard<std::mutex> lock(journalMutex());
  journalLines().push_back(std::move(line));
}

void journalFormat(std::string& out, int v) { out += std::to_string(v); }
void journalFormat(std::string& out, long v) { out += std::to_string(v); }
void journalFormat(std::string& out, long long v) { out += std::to_string(v); }
void journalFormat(std::string& out, unsigned v) { out += std::to_string(v); }
void journalFormat(std::string& out, unsigned long v) { out += std::to_string(v); }
void journalFormat(std::string& out, unsigned short v) { out += std::to_string(v); }
void journalFormat(std::string& out, short v) { out += std::to_string(v); }

void journalFormat(std::string& out, float v) {
  char buf[32];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  out.append(buf, r.ptr);
}

void journalFormat(std::string& out, double v) {
  char buf[40];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  out.append(buf, r.ptr);
}

void journalFormat(std::string& out, bool v) { out += v ? "true" : "false"; }

void journalFormat(std::string& out, const char* v) {
  if (v == nullptr) {
    out += "null";
    return;
  }
  out += '"';
  out += v;
  out += '"';
}

void journalFormat(std::string& out, const std::string& v) { journalFormat(out, v.c_str()); }

void journalFormat(std::string& out, const void* v) {
  if (v == nullptr) {
    out += "null";
    return;
  }
  char buf[24];
  std::snprintf(buf, sizeof buf, "%p", v);
  out += buf;
}

void journalFormat(std::string& out, JournalFn f) { out += f.present ? "fn" : "null"; }
void journalFormat(std::string& out, JournalName n) { out += n.name; }
