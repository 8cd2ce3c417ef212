#include <gtest/gtest.h>

#include <CorvelJNI/ArrayHelper.h>

#include <vector>

#include "JavaVM.h"

namespace {
JNIEnv* env() { return nativetest::env(); }

jfloatArray floats(std::vector<float> v) {
  jfloatArray a = env()->NewFloatArray(static_cast<jsize>(v.size()));
  env()->SetFloatArrayRegion(a, 0, static_cast<jsize>(v.size()), v.data());
  return a;
}

std::vector<float> read(jfloatArray a) {
  std::vector<float> v(static_cast<std::size_t>(env()->GetArrayLength(a)));
  env()->GetFloatArrayRegion(a, 0, static_cast<jsize>(v.size()), v.data());
  return v;
}
}  // namespace

TEST(ArrayHelper, ReadWriteIsCopiedBackOnlyWhenTheHelperIsDestroyed) {
  jfloatArray a = floats({1, 2, 3});
  {
    ArrayHelper helper(env());
    float* p = helper.toNativeArray(a, ArrayHelper::ReadWrite);
    p[0] = 42;
    EXPECT_EQ(read(a), (std::vector<float>{1, 2, 3}));
  }
  EXPECT_EQ(read(a), (std::vector<float>{42, 2, 3}));
}

TEST(ArrayHelper, ReadOnlyIsNeverCopiedBack) {
  jfloatArray a = floats({1, 2, 3});
  {
    ArrayHelper helper(env());
    float* p = helper.toNativeArray(a, ArrayHelper::ReadOnly);
    EXPECT_EQ(p[2], 3.0f);
    p[2] = -1;
  }
  EXPECT_EQ(read(a), (std::vector<float>{1, 2, 3}));
}

TEST(ArrayHelper, ReleasesInReverseOrderOfConversion) {
  // The same array converted twice: the first conversion is copied back last.
  jfloatArray a = floats({0});
  {
    ArrayHelper helper(env());
    float* first = helper.toNativeArray(a, ArrayHelper::ReadWrite);
    float* second = helper.toNativeArray(a, ArrayHelper::ReadWrite);
    first[0] = 1;
    second[0] = 2;
  }
  EXPECT_EQ(read(a)[0], 1.0f);
}

TEST(ArrayHelper, ManyArraysInOneHelper) {
  std::vector<jfloatArray> arrays;
  {
    ArrayHelper helper(env());
    for (int i = 0; i < 20; ++i) {
      arrays.push_back(floats({0}));
      helper.toNativeArray(arrays.back(), ArrayHelper::ReadWrite)[0] = static_cast<float>(i);
    }
  }
  for (int i = 0; i < 20; ++i) EXPECT_EQ(read(arrays[i])[0], static_cast<float>(i));
}

TEST(ArrayHelper, NullGivesNullAndEmptyGivesAPointer) {
  ArrayHelper helper(env());
  EXPECT_EQ(helper.toNativeArray(static_cast<jfloatArray>(nullptr), ArrayHelper::ReadOnly), nullptr);
  EXPECT_EQ(helper.toNativeArray(static_cast<jintArray>(nullptr), ArrayHelper::ReadWrite), nullptr);
  EXPECT_NE(helper.toNativeArray(env()->NewFloatArray(0), ArrayHelper::ReadWrite), nullptr);
}

TEST(ArrayHelper, BooleanElementsHoldAWholeInt) {
  jbooleanArray a = env()->NewBooleanArray(2);
  jboolean init[2] = {JNI_FALSE, JNI_TRUE};
  env()->SetBooleanArrayRegion(a, 0, 2, init);
  {
    ArrayHelper helper(env());
    int* p = helper.toNativeArray(a, ArrayHelper::ReadWrite);
    EXPECT_EQ(p[0], 0);
    EXPECT_EQ(p[1], 1);
    p[0] = 0x100;  // non-zero only above the first byte
    p[1] = 0;
  }
  jboolean out[2];
  env()->GetBooleanArrayRegion(a, 0, 2, out);
  EXPECT_EQ(out[0], JNI_TRUE);
  EXPECT_EQ(out[1], JNI_FALSE);
}

TEST(ArrayHelper, ShortsAreReadAsUnsigned) {
  jshortArray a = env()->NewShortArray(2);
  jshort init[2] = {-1, 7};
  env()->SetShortArrayRegion(a, 0, 2, init);
  ArrayHelper helper(env());
  unsigned short* p = helper.toUnsignedNativeArray(a, ArrayHelper::ReadOnly);
  EXPECT_EQ(p[0], 65535);
  EXPECT_EQ(p[1], 7);
}

TEST(ArrayHelper, IntAndByteArrays) {
  jintArray ints = env()->NewIntArray(1);
  jbyteArray bytes = env()->NewByteArray(1);
  {
    ArrayHelper helper(env());
    helper.toNativeArray(ints, ArrayHelper::ReadWrite)[0] = -5;
    helper.toNativeArray(bytes, ArrayHelper::ReadWrite)[0] = -7;
  }
  jint i;
  jbyte b;
  env()->GetIntArrayRegion(ints, 0, 1, &i);
  env()->GetByteArrayRegion(bytes, 0, 1, &b);
  EXPECT_EQ(i, -5);
  EXPECT_EQ(b, -7);
}

TEST(ArrayHelper, FromNativeArray) {
  const float f[] = {1.5f, -2};
  jfloatArray a = ArrayHelper::fromNativeArray(env(), f, 2);
  EXPECT_EQ(read(a), (std::vector<float>{1.5f, -2}));
  EXPECT_EQ(env()->GetArrayLength(ArrayHelper::fromNativeArray(env(), f, 0)), 0);
  EXPECT_EQ(ArrayHelper::fromNativeArray(env(), static_cast<const float*>(nullptr), 5), nullptr);
  const int i[] = {3, 4, 5};
  jintArray ia = ArrayHelper::fromNativeArray(env(), i, 3);
  jint back[3];
  env()->GetIntArrayRegion(ia, 0, 3, back);
  EXPECT_EQ(back[2], 5);
  EXPECT_EQ(ArrayHelper::fromNativeArray(env(), static_cast<const int*>(nullptr), 1), nullptr);
}

TEST(ArrayHelper, CopyBackKeepsAPendingException) {
  jfloatArray a = floats({0});
  jclass cls = env()->FindClass("java/lang/IllegalStateException");
  {
    ArrayHelper helper(env());
    helper.toNativeArray(a, ArrayHelper::ReadWrite)[0] = 9;
    env()->ThrowNew(cls, "pending");
  }
  ASSERT_TRUE(env()->ExceptionCheck());
  jthrowable t = env()->ExceptionOccurred();
  env()->ExceptionClear();
  EXPECT_TRUE(env()->IsInstanceOf(t, cls));
  EXPECT_EQ(read(a)[0], 9.0f);
}
