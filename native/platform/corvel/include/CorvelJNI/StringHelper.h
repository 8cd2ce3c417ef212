// Conversion of Java strings into native strings and back.
//
// toUTFString() gives standard UTF-8 (not the JVM's modified UTF-8), and
// toUnicodeString() gives UTF-32 wchar_t text; unpaired surrogates become
// U+FFFD. Both are converted once and stay valid until the helper is
// destroyed. A helper bound to a null jstring gives null pointers.
//
// The fromNativeString overloads make a new Java string (a local reference);
// a null char pointer gives a null jstring. Invalid UTF-8 sequences become
// U+FFFD.
#pragma once

#include <Corvel/StandIn.h>

#include <jni.h>

#include <string>
#include <vector>

class SbString;
class SbName;

class StringHelper {
 public:
  StringHelper(JNIEnv* env, jstring string);
  ~StringHelper();
  StringHelper(const StringHelper&) = delete;
  StringHelper& operator=(const StringHelper&) = delete;

  const char* toUTFString();
  const wchar_t* toUnicodeString();

  static jstring fromNativeString(JNIEnv* env, const char* utf8);
  static jstring fromNativeString(JNIEnv* env, const SbString& string);
  static jstring fromNativeString(JNIEnv* env, const SbName& name);

 private:
  bool fetch();

  JNIEnv* env;
  jstring string;
  std::u16string utf16;
  bool fetched = false;
  std::string utf8;
  bool haveUtf8 = false;
  std::wstring wide;
  bool haveWide = false;
};

// Conversion of a Java String[] into native string arrays. A null Java array
// gives null; a null element gives a null char pointer (UTF-8 form) or an
// empty SbString.
class StringArrayHelper {
 public:
  StringArrayHelper(JNIEnv* env, jobjectArray strings);
  ~StringArrayHelper();
  StringArrayHelper(const StringArrayHelper&) = delete;
  StringArrayHelper& operator=(const StringArrayHelper&) = delete;

  const char** toUTFStringArray();
  SbString* toSbStringArray();
  TAVREL_STANDIN_ONLY int getLength() const { return length; }

 private:
  JNIEnv* env;
  jobjectArray strings;
  int length = 0;
  std::string text;         // every element's UTF-8 text with its NUL, one after the other
  std::vector<int> starts;  // where each element's text starts in text; -1 for a null element
  const char** utfArray = nullptr;
  SbString* sbArray = nullptr;
  bool fetched = false;
  bool fetch();
};
