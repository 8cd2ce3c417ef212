#include <Corvel/CallJournal.h>
#include <Corvel/SbBox.h>
#include <Corvel/SbName.h>
#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Corvel/SbThreadMutex.h>
#include <Corvel/SoModuleCheck.h>

#include <atomic>
#include <cfloat>
#include <cmath>
#include <map>
#include <cstring>
#include <mutex>
#include <unordered_set>

float SbVec2f::length() const { return std::sqrt(dot(*this)); }
float SbVec3f::length() const { return std::sqrt(dot(*this)); }

void journalFormat(std::string& out, const SbVec2f& v) {
  out += '(';
  journalFormat(out, v[0]);
  out += ", ";
  journalFormat(out, v[1]);
  out += ')';
}

void journalFormat(std::string& out, const SbVec3f& v) {
  out += '(';
  journalFormat(out, v[0]);
  out += ", ";
  journalFormat(out, v[1]);
  out += ", ";
  journalFormat(out, v[2]);
  out += ')';
}

void SbBox2f::makeEmpty() {
  minPt.setValue(FLT_MAX, FLT_MAX);
  maxPt.setValue(-FLT_MAX, -FLT_MAX);
}

void SbBox2f::extendBy(const SbVec2f& p) {
  for (int i = 0; i < 2; ++i) {
    if (p[i] < minPt[i]) minPt[i] = p[i];
    if (p[i] > maxPt[i]) maxPt[i] = p[i];
  }
}

void SbBox3f::makeEmpty() {
  minPt.setValue(FLT_MAX, FLT_MAX, FLT_MAX);
  maxPt.setValue(-FLT_MAX, -FLT_MAX, -FLT_MAX);
}

void SbBox3f::extendBy(const SbVec3f& p) {
  for (int i = 0; i < 3; ++i) {
    if (p[i] < minPt[i]) minPt[i] = p[i];
    if (p[i] > maxPt[i]) maxPt[i] = p[i];
  }
}

void SbBox3f::extendBy(const SbBox3f& b) {
  if (b.isEmpty()) return;
  extendBy(b.getMin());
  extendBy(b.getMax());
}

bool SbBox3f::intersect(const SbVec3f& p) const {
  for (int i = 0; i < 3; ++i)
    if (p[i] < minPt[i] || p[i] > maxPt[i]) return false;
  return true;
}

float SbBox3f::getVolume() const {
  if (isEmpty()) return 0.0f;
  SbVec3f d = maxPt - minPt;
  return d[0] * d[1] * d[2];
}

void journalFormat(std::string& out, const SbBox2f& b) {
  journalFormat(out, b.getMin());
  out += "..";
  journalFormat(out, b.getMax());
}

void journalFormat(std::string& out, const SbBox3f& b) {
  journalFormat(out, b.getMin());
  out += "..";
  journalFormat(out, b.getMax());
}

// --- strings -----------------------------------------------------------------

namespace {
void appendUtf8(std::string& out, char32_t c) {
  if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = 0xFFFD;
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}
}  // namespace

SbString::SbString(const char* utf8) : text(utf8 ? utf8 : "") {}

SbString::SbString(const wchar_t* wide) {
  if (wide == nullptr) return;
  for (const wchar_t* p = wide; *p; ++p) appendUtf8(text, static_cast<char32_t>(*p));
}

void journalFormat(std::string& out, const SbString& s) { journalFormat(out, s.getString()); }

const char* SbName::intern(const char* s, std::size_t length) {
  static std::mutex* mutex = new std::mutex;                       // never destroyed: names outlive
  static std::unordered_set<std::string>* table = new std::unordered_set<std::string>;  // static objects
  std::lock_guard<std::mutex> lock(*mutex);
  return table->emplace(s, length).first->c_str();  // set elements never move
}

SbName::SbName() : text(intern("", 0)) {}
SbName::SbName(const char* s) : text(s ? intern(s, std::strlen(s)) : intern("", 0)) {}
SbName::SbName(const std::string& s) : text(intern(s.data(), s.size())) {}
SbName::SbName(const SbString& s) : SbName(std::string(s.getString())) {}
int SbName::getLength() const { return static_cast<int>(std::strlen(text)); }

void journalFormat(std::string& out, const SbName& s) { journalFormat(out, s.getString()); }

// --- threads -----------------------------------------------------------------

SbThreadMutex::SbThreadMutex(bool recursive) : recursive(recursive) {
  pthread_mutexattr_t attr;
  pthread_mutexattr_init(&attr);
  pthread_mutexattr_settype(&attr, recursive ? PTHREAD_MUTEX_RECURSIVE : PTHREAD_MUTEX_NORMAL);
  pthread_mutex_init(&mutex, &attr);
  pthread_mutexattr_destroy(&attr);
}

SbThreadMutex::~SbThreadMutex() { pthread_mutex_destroy(&mutex); }
int SbThreadMutex::lock() { return pthread_mutex_lock(&mutex); }
int SbThreadMutex::unlock() { return pthread_mutex_unlock(&mutex); }

// --- version checks ----------------------------------------------------------

namespace {
std::mutex& moduleCheckMutex() {
  static std::mutex m;
  return m;
}
std::map<int, int>& moduleChecks() {
  static std::map<int, int> counts;
  return counts;
}
}  // namespace

SoModuleCheck::SoModuleCheck(int version) {
  std::lock_guard<std::mutex> lock(moduleCheckMutex());
  ++moduleChecks()[version];
}

int SoModuleCheck::getInstanceCount() {
  std::lock_guard<std::mutex> lock(moduleCheckMutex());
  int n = 0;
  for (auto& e : moduleChecks()) n += e.second;
  return n;
}

int SoModuleCheck::getInstanceCount(int version) {
  std::lock_guard<std::mutex> lock(moduleCheckMutex());
  auto it = moduleChecks().find(version);
  return it == moduleChecks().end() ? 0 : it->second;
}
