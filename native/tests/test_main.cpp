#include <gtest/gtest.h>

#include <CorvelJNI/JNIEnvHelper.h>

#include "JavaVM.h"

namespace {
JavaVM* vm = nullptr;
JNIEnv* mainEnv = nullptr;
}  // namespace

JNIEnv* nativetest::env() { return mainEnv; }

void nativetest::collectGarbage() {
  jclass system = mainEnv->FindClass("java/lang/System");
  jmethodID gc = mainEnv->GetStaticMethodID(system, "gc", "()V");
  for (int i = 0; i < 3; ++i) {
    mainEnv->CallStaticVoidMethod(system, gc);
    mainEnv->ExceptionCheck();
  }
  mainEnv->DeleteLocalRef(system);
}

namespace {
// Each test runs in its own local-reference frame, as a native method would.
class LocalFrames : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override { mainEnv->PushLocalFrame(64); }
  void OnTestEnd(const ::testing::TestInfo&) override {
    if (mainEnv->ExceptionCheck()) mainEnv->ExceptionClear();
    mainEnv->PopLocalFrame(nullptr);
  }
};
}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::UnitTest::GetInstance()->listeners().Append(new LocalFrames);
  JavaVMOption options[1];
  options[0].optionString = const_cast<char*>("-Xcheck:jni");
  JavaVMInitArgs args;
  args.version = JNI_VERSION_1_8;
  args.nOptions = 1;
  args.options = options;
  args.ignoreUnrecognized = JNI_FALSE;
  if (JNI_CreateJavaVM(&vm, reinterpret_cast<void**>(&mainEnv), &args) != JNI_OK) {
    fprintf(stderr, "cannot start a Java virtual machine\n");
    return 2;
  }
  int rc = RUN_ALL_TESTS();
  // The JVM is not destroyed: daemon threads may still be about.
  return rc;
}
