#include <Corvel/SbName.h>
#include <Corvel/SbString.h>
#include <CorvelJNI/StringHelper.h>

#include <algorithm>

namespace {
constexpr char32_t kReplacement = 0xFFFD;

// Appends one code point as UTF-8.
void putUtf8(std::string& out, char32_t c) {
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

// Reads a Java string's UTF-16 characters into buffer (which grows as needed);
// returns their count.
std::size_t readUtf16(JNIEnv* env, jstring string, std::u16string& buffer) {
  const jsize n = env->GetStringLength(string);
  if (buffer.size() < static_cast<std::size_t>(n)) buffer.resize(static_cast<std::size_t>(n));
  if (n > 0) env->GetStringRegion(string, 0, n, reinterpret_cast<jchar*>(&buffer[0]));
  return static_cast<std::size_t>(n);
}

// Calls f(codePoint) for each code point of n UTF-16 characters (an unpaired
// surrogate becomes U+FFFD).
template <class F>
void forEachUtf16(const char16_t* s, std::size_t n, F f) {
  for (std::size_t i = 0; i < n; ++i) {
    char32_t c = s[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < n && s[i + 1] >= 0xDC00 && s[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (s[i + 1] - 0xDC00);
      ++i;
    } else if (c >= 0xD800 && c <= 0xDFFF) {
      c = kReplacement;
    }
    f(c);
  }
}

// Appends n UTF-16 characters as UTF-8.
void appendUtf8(std::string& out, const char16_t* s, std::size_t n) {
  // Grows geometrically: the texts of a whole array go into one string.
  if (out.capacity() < out.size() + n) out.reserve(std::max(out.size() + n, 2 * out.capacity()));
  forEachUtf16(s, n, [&out](char32_t c) { putUtf8(out, c); });
}

// Decodes UTF-8 into UTF-16; invalid sequences become U+FFFD.
std::u16string utf8ToUtf16(const char* s) {
  std::u16string out;
  const unsigned char* p = reinterpret_cast<const unsigned char*>(s);
  while (*p) {
    char32_t c = *p;
    int extra = 0;
    char32_t min = 0;
    if (c < 0x80) {
      extra = 0;
    } else if ((c & 0xE0) == 0xC0) {
      c &= 0x1F; extra = 1; min = 0x80;
    } else if ((c & 0xF0) == 0xE0) {
      c &= 0x0F; extra = 2; min = 0x800;
    } else if ((c & 0xF8) == 0xF0) {
      c &= 0x07; extra = 3; min = 0x10000;
    } else {
      out += static_cast<char16_t>(kReplacement);
      ++p;
      continue;
    }
    ++p;
    bool ok = true;
    for (int k = 0; k < extra; ++k) {
      if ((*p & 0xC0) != 0x80) { ok = false; break; }
      c = (c << 6) | (*p & 0x3F);
      ++p;
    }
    if (!ok || c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = kReplacement;
    if (c >= 0x10000) {
      c -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (c >> 10));
      out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      out += static_cast<char16_t>(c);
    }
  }
  return out;
}

bool isAscii(const char* s) {
  for (const unsigned char* p = reinterpret_cast<const unsigned char*>(s); *p; ++p)
    if (*p >= 0x80) return false;
  return true;
}
}  // namespace

StringHelper::StringHelper(JNIEnv* env, jstring string) : env(env), string(string) {}

StringHelper::~StringHelper() = default;

bool StringHelper::fetch() {
  if (!fetched) {
    fetched = true;
    if (string != nullptr) utf16.resize(readUtf16(env, string, utf16));
  }
  return string != nullptr;
}

const char* StringHelper::toUTFString() {
  if (!fetch()) return nullptr;
  if (!haveUtf8) {
    appendUtf8(utf8, utf16.data(), utf16.size());
    haveUtf8 = true;
  }
  return utf8.c_str();
}

const wchar_t* StringHelper::toUnicodeString() {
  if (!fetch()) return nullptr;
  if (!haveWide) {
    wide.reserve(utf16.size());
    forEachUtf16(utf16.data(), utf16.size(), [this](char32_t c) { wide += static_cast<wchar_t>(c); });
    haveWide = true;
  }
  return wide.c_str();
}

jstring StringHelper::fromNativeString(JNIEnv* env, const char* utf8) {
  if (utf8 == nullptr) return nullptr;
  // Plain ASCII is also the JVM's modified UTF-8.
  if (isAscii(utf8)) return env->NewStringUTF(utf8);
  std::u16string s = utf8ToUtf16(utf8);
  return env->NewString(reinterpret_cast<const jchar*>(s.data()), static_cast<jsize>(s.size()));
}

jstring StringHelper::fromNativeString(JNIEnv* env, const SbString& string) {
  return fromNativeString(env, string.getString());
}

jstring StringHelper::fromNativeString(JNIEnv* env, const SbName& name) {
  return fromNativeString(env, name.getString());
}

// --- StringArrayHelper ----------------------------------------------------------

StringArrayHelper::StringArrayHelper(JNIEnv* env, jobjectArray strings) : env(env), strings(strings) {}

StringArrayHelper::~StringArrayHelper() {
  delete[] utfArray;
  delete[] sbArray;
}

bool StringArrayHelper::fetch() {
  if (fetched) return strings != nullptr;
  fetched = true;
  if (strings == nullptr) return false;
  length = env->GetArrayLength(strings);
  starts.assign(static_cast<std::size_t>(length), -1);
  std::u16string buffer;  // each string's characters in turn
  for (int i = 0; i < length; ++i) {
    jstring s = static_cast<jstring>(env->GetObjectArrayElement(strings, i));
    if (s) {
      const std::size_t n = readUtf16(env, s, buffer);
      starts[static_cast<std::size_t>(i)] = static_cast<int>(text.size());
      appendUtf8(text, buffer.data(), n);
      text += '\0';
      env->DeleteLocalRef(s);
    }
  }
  return true;
}

const char** StringArrayHelper::toUTFStringArray() {
  if (!fetch()) return nullptr;
  if (utfArray == nullptr) {
    utfArray = new const char*[length > 0 ? length : 1];
    for (int i = 0; i < length; ++i) utfArray[i] = starts[i] < 0 ? nullptr : text.data() + starts[i];
  }
  return utfArray;
}

SbString* StringArrayHelper::toSbStringArray() {
  if (!fetch()) return nullptr;
  if (sbArray == nullptr) {
    sbArray = new SbString[length > 0 ? length : 1];
    for (int i = 0; i < length; ++i)
      if (starts[i] >= 0) sbArray[i] = SbString(text.data() + starts[i]);
  }
  return sbArray;
}
