#include <gtest/gtest.h>

#include <Corvel/SbName.h>
#include <Corvel/SbString.h>
#include <CorvelJNI/StringHelper.h>

#include <string>

#include "JavaVM.h"

namespace {
JNIEnv* env() { return nativetest::env(); }

jstring javaString(const std::u16string& s) {
  return env()->NewString(reinterpret_cast<const jchar*>(s.data()), static_cast<jsize>(s.size()));
}

std::u16string javaChars(jstring s) {
  std::u16string out(static_cast<std::size_t>(env()->GetStringLength(s)), u'\0');
  env()->GetStringRegion(s, 0, static_cast<jsize>(out.size()), reinterpret_cast<jchar*>(&out[0]));
  return out;
}
}  // namespace

TEST(StringHelper, StandardUtf8AndWideText) {
  // "aé€" and U+1F600 (a surrogate pair in Java), and an embedded NUL-free text.
  StringHelper helper(env(), javaString(u"a\u00e9\u20ac\U0001F600"));
  EXPECT_STREQ(helper.toUTFString(), "a\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80");
  EXPECT_EQ(std::wstring(helper.toUnicodeString()), std::wstring(L"a\u00e9\u20ac\U0001F600"));
}

TEST(StringHelper, UnpairedSurrogateBecomesReplacementCharacter) {
  StringHelper helper(env(), javaString(std::u16string(1, char16_t(0xD800)) + u"x"));
  EXPECT_STREQ(helper.toUTFString(), "\xef\xbf\xbdx");
}

TEST(StringHelper, NullStringGivesNullPointers) {
  StringHelper helper(env(), nullptr);
  EXPECT_EQ(helper.toUTFString(), nullptr);
  EXPECT_EQ(helper.toUnicodeString(), nullptr);
  EXPECT_EQ(StringHelper::fromNativeString(env(), static_cast<const char*>(nullptr)), nullptr);
}

TEST(StringHelper, FromNativeStringOverloads) {
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), "plain")), u"plain");
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), "\xf0\x9f\x98\x80!")), u"\U0001F600!");
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), SbString(L"w\u00e9"))), u"w\u00e9");
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), SbName("Node"))), u"Node");
  // A truncated sequence and a stray continuation byte.
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), "a\xe2\x82")), u"a\ufffd");
  EXPECT_EQ(javaChars(StringHelper::fromNativeString(env(), "\x80z")), u"\ufffdz");
}

TEST(StringArrayHelper, ConvertsElementsAndKeepsNulls) {
  jclass stringClass = env()->FindClass("java/lang/String");
  jobjectArray a = env()->NewObjectArray(3, stringClass, nullptr);
  env()->SetObjectArrayElement(a, 0, javaString(u"one"));
  env()->SetObjectArrayElement(a, 2, javaString(u"tr\u00e9s"));
  StringArrayHelper helper(env(), a);
  const char** utf = helper.toUTFStringArray();
  EXPECT_STREQ(utf[0], "one");
  EXPECT_EQ(utf[1], nullptr);
  EXPECT_STREQ(utf[2], "tr\xc3\xa9s");
  SbString* sb = helper.toSbStringArray();
  EXPECT_STREQ(sb[1].getString(), "");
  EXPECT_STREQ(sb[2].getString(), "tr\xc3\xa9s");

  // Strings of every length in turn, ASCII runs around other characters: each element is its own
  // text, whatever the one before it was.
  jobjectArray mixed = env()->NewObjectArray(5, stringClass, nullptr);
  env()->SetObjectArrayElement(mixed, 0, javaString(u"a long plain name of many letters"));
  env()->SetObjectArrayElement(mixed, 1, javaString(u"ab\u00e9cd\U0001F600ef"));
  env()->SetObjectArrayElement(mixed, 2, javaString(u""));
  env()->SetObjectArrayElement(mixed, 3, javaString(u"z"));
  env()->SetObjectArrayElement(mixed, 4, javaString(std::u16string(u"x") + char16_t(0xDC00)));
  StringArrayHelper texts(env(), mixed);
  const char** t = texts.toUTFStringArray();
  EXPECT_STREQ(t[0], "a long plain name of many letters");
  EXPECT_STREQ(t[1], "ab\xc3\xa9" "cd\xf0\x9f\x98\x80" "ef");
  EXPECT_STREQ(t[2], "");
  EXPECT_STREQ(t[3], "z");
  EXPECT_STREQ(t[4], "x\xef\xbf\xbd");

  StringArrayHelper none(env(), nullptr);
  EXPECT_EQ(none.toUTFStringArray(), nullptr);
  EXPECT_EQ(none.toSbStringArray(), nullptr);
}
