// The call from a callback bridge into Java (callbacks/InvokeNativ.h), on
// peers that lack the method, that are gone, or with an exception pending.

#include <gtest/gtest.h>

#include <CorvelJNI/DebugOutput.h>
#include <CorvelJNI/ICustomClass.h>

#include "JavaVM.h"
#include "callbacks/InvokeNativ.h"

namespace {
JNIEnv* env() { return nativetest::env(); }

jobject newObject() {
  jclass cls = env()->FindClass("java/lang/Object");
  jobject object = env()->AllocObject(cls);
  env()->DeleteLocalRef(cls);
  return object;
}

struct CapturedDebug {
  CapturedDebug() {
    corvel::setDebugMode(corvel::DebugMode::Capture);
    corvel::takeCapturedDebugLines();
  }
  ~CapturedDebug() { corvel::setDebugMode(corvel::DebugMode::Off); }
};
}  // namespace

TEST(InvokeNativ, APeerWithoutTheMethodLeavesNoSuchMethodErrorAndNoLocalReferences) {
  ICustomClass bridge;
  jobject peer = newObject();
  bridge.initJavaObject(env(), peer, true);
  env()->DeleteLocalRef(peer);
  jclass noSuchMethod = env()->FindClass("java/lang/NoSuchMethodError");
  // Far more calls than the test's local frame holds: each one must release what it made.
  for (int i = 0; i < 200; ++i) {
    tavrel::invokeNativ(bridge, "(JJ)V", 1L, 2L);
    jthrowable pending = env()->ExceptionOccurred();
    ASSERT_NE(pending, nullptr);
    env()->ExceptionClear();
    ASSERT_TRUE(env()->IsInstanceOf(pending, noSuchMethod));
    env()->DeleteLocalRef(pending);
  }
  env()->DeleteLocalRef(noSuchMethod);
}

TEST(InvokeNativ, AnExceptionAlreadyPendingIsLeftAloneAndNothingIsCalled) {
  ICustomClass bridge;
  jobject peer = newObject();
  bridge.initJavaObject(env(), peer, true);
  env()->DeleteLocalRef(peer);
  jclass state = env()->FindClass("java/lang/IllegalStateException");
  env()->ThrowNew(state, "earlier event");
  jthrowable earlier = env()->ExceptionOccurred();

  CapturedDebug debug;
  tavrel::invokeNativ(bridge, "(J)V", 3L);

  jthrowable after = env()->ExceptionOccurred();
  env()->ExceptionClear();
  EXPECT_TRUE(env()->IsSameObject(earlier, after)) << "the method lookup would have replaced it";
  EXPECT_TRUE(corvel::takeCapturedDebugLines().empty());
  env()->DeleteLocalRef(state);
}

TEST(InvokeNativ, ACollectedPeerIsReportedOnce) {
  ICustomClass bridge;
  jobject peer = newObject();
  bridge.initJavaObject(env(), peer, true);
  env()->DeleteLocalRef(peer);
  for (int i = 0; i < 20 && !env()->IsSameObject(bridge.javaPeer, nullptr); ++i) nativetest::collectGarbage();
  ASSERT_TRUE(env()->IsSameObject(bridge.javaPeer, nullptr)) << "the peer was not collected";

  CapturedDebug debug;
  tavrel::invokeNativ(bridge, "(J)V", 3L);
  EXPECT_FALSE(env()->ExceptionCheck());
  EXPECT_EQ(corvel::takeCapturedDebugLines(),
            std::vector<std::string>{"DEBUG: Java callback object has been freed!\n"});
}
