#include <gtest/gtest.h>

#include <CorvelJNI/DebugOutput.h>
#include <CorvelJNI/ExceptionHelper.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>

#include <thread>

#include "JavaVM.h"

namespace {
JNIEnv* env() { return nativetest::env(); }

std::string messageOf(jthrowable t) {
  jclass cls = env()->FindClass("java/lang/Throwable");
  jmethodID getMessage = env()->GetMethodID(cls, "getMessage", "()Ljava/lang/String;");
  jstring m = static_cast<jstring>(env()->CallObjectMethod(t, getMessage));
  EXPECT_FALSE(env()->ExceptionCheck());
  const char* c = env()->GetStringUTFChars(m, nullptr);
  std::string s(c);
  env()->ReleaseStringUTFChars(m, c);
  return s;
}
}  // namespace

TEST(ExceptionHelper, IllegalArgumentCarriesThePendingCause) {
  jclass state = env()->FindClass("java/lang/IllegalStateException");
  env()->ThrowNew(state, "from Java");
  jthrowable cause = env()->ExceptionOccurred();
  ExceptionHelper::throwIllegalArgException(env(), "Exception raised during execution of X.y.", cause);
  ASSERT_TRUE(env()->ExceptionCheck());
  jthrowable raised = env()->ExceptionOccurred();
  env()->ExceptionClear();
  EXPECT_TRUE(env()->IsInstanceOf(raised, env()->FindClass("java/lang/IllegalArgumentException")));
  EXPECT_EQ(messageOf(raised), "Exception raised during execution of X.y.");
  jmethodID getCause = env()->GetMethodID(env()->FindClass("java/lang/Throwable"), "getCause",
                                          "()Ljava/lang/Throwable;");
  jobject actualCause = env()->CallObjectMethod(raised, getCause);
  EXPECT_FALSE(env()->ExceptionCheck());
  EXPECT_TRUE(env()->IsSameObject(actualCause, cause));
}

TEST(ExceptionHelper, IllegalAccessOnTheCurrentThread) {
  ExceptionHelper::throwIllegalAccessException("Call of protected methods not allowed.");
  ASSERT_TRUE(env()->ExceptionCheck());
  jthrowable raised = env()->ExceptionOccurred();
  env()->ExceptionClear();
  EXPECT_TRUE(env()->IsInstanceOf(raised, env()->FindClass("java/lang/IllegalAccessException")));
  EXPECT_EQ(messageOf(raised), "Call of protected methods not allowed.");
}

TEST(JNIEnvHelper, GivesTheCallersEnvironmentAndAttachesNewThreads) {
  EXPECT_EQ(JNIEnvHelper::getEnv(), env());
  JNIEnv* other = nullptr;
  bool usable = false;
  std::thread t([&] {
    other = JNIEnvHelper::getEnv();
    if (other != nullptr) {
      jclass cls = other->FindClass("java/lang/Object");
      usable = cls != nullptr;
      other->DeleteLocalRef(cls);
    }
  });
  t.join();
  EXPECT_NE(other, nullptr);
  EXPECT_NE(other, env());
  EXPECT_TRUE(usable);
}

TEST(ICustomClass, WeakPeerBecomesNullOnceCollected) {
  ICustomClass peerHolder;
  EXPECT_EQ(peerHolder.javaPeer, nullptr);
  jclass cls = env()->FindClass("java/lang/Object");
  jobject object = env()->AllocObject(cls);
  peerHolder.initJavaObject(env(), object, true);
  jobject alive = env()->NewLocalRef(peerHolder.javaPeer);
  EXPECT_NE(alive, nullptr);
  env()->DeleteLocalRef(alive);
  env()->DeleteLocalRef(object);
  nativetest::collectGarbage();
  EXPECT_EQ(env()->NewLocalRef(peerHolder.javaPeer), nullptr);
}

TEST(ICustomClass, StrongPeerIsAGlobalReference) {
  ICustomClass peerHolder;
  jobject object = env()->AllocObject(env()->FindClass("java/lang/Object"));
  peerHolder.initJavaObject(env(), object, false);
  EXPECT_EQ(env()->GetObjectRefType(peerHolder.javaPeer), JNIGlobalRefType);
  env()->DeleteGlobalRef(peerHolder.javaPeer);
}

TEST(DebugOutput, CapturesLinesWhenAsked) {
  corvel::setDebugMode(corvel::DebugMode::Off);
  char dropped[] = "dropped\n";
  char one[] = "DEBUG: one\n";
  char two[] = "DEBUG: two\n";
  PRINTDBG(dropped);
  corvel::setDebugMode(corvel::DebugMode::Capture);
  PRINTDBG(one);
  PRINTDBG(two);
  auto lines = corvel::takeCapturedDebugLines();
  corvel::setDebugMode(corvel::DebugMode::Off);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "DEBUG: one\n");
  EXPECT_TRUE(corvel::takeCapturedDebugLines().empty());
}
