// A toolkit int flag stored into a boolean output's native elements keeps its
// truth whatever element type the binding core gives boolean arrays.
#include <gtest/gtest.h>

#include <jni.h>

#include "common/Results.h"

namespace {

template <class Element>
void expectStored(int flag, Element expected) {
  Element elements[2] = {Element(7), Element(7)};
  tavrel::storeFlag(elements, flag);
  EXPECT_EQ(expected, elements[0]) << "flag " << flag;
  EXPECT_EQ(Element(7), elements[1]) << "only element 0 is written";
}

TEST(BooleanOutputs, AFlagKeepsItsTruthInEveryElementType) {
  for (int flag : {0, 1, 2, 256, -1, 0x10000}) {
    expectStored<int>(flag, flag != 0 ? 1 : 0);
    expectStored<jboolean>(flag, flag != 0 ? JNI_TRUE : JNI_FALSE);
    expectStored<bool>(flag, flag != 0);
  }
}

}  // namespace
