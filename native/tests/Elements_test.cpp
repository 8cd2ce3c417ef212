// The toolkit stand-in's elements and traversal-state stacks.

#include <gtest/gtest.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoSeparator.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PoDataMappingElement.h>
#include <Tavrel/PoMesh1DHintsElement.h>
#include <Tavrel/PoProfileElement.h>

#include <string>
#include <vector>

namespace {
std::vector<std::string> calls;

std::string id(const void* p) { return p == nullptr ? "null" : std::to_string(reinterpret_cast<std::uintptr_t>(p) % 100000); }

// A data-mapping element that records what the state asks of it.
class RecordingElement : public PoDataMappingElement {
 public:
  static SoType type;
  void push(SoState* state) override {
    calls.push_back("push " + id(this) + " above " + id(getNextInStack()));
    PoDataMappingElement::push(state);
  }
  void pop(SoState* state, const SoElement* prev) override {
    calls.push_back("pop " + id(this) + " after " + id(prev));
    PoDataMappingElement::pop(state, prev);
  }
  void init(SoState* state) override {
    calls.push_back("init " + id(this));
    PoDataMappingElement::init(state);
  }
  void captureThis(SoState* state) const override {
    calls.push_back("captureThis " + id(this));
    PoDataMappingElement::captureThis(state);
  }
  bool isPopped() const { return popped; }
  const SoElement* below() const { return getNextInStack(); }
};
SoType RecordingElement::type;

// Enables the recording element on the data-mapping stack for one test.
class Elements : public ::testing::Test {
 protected:
  void SetUp() override {
    calls.clear();
    if (RecordingElement::type.isBad())
      RecordingElement::type = SoType::createType(PoDataMappingElement::getClassTypeId(), "RecordingElement",
                                                  [](SoType*) -> void* { return static_cast<SoElement*>(new RecordingElement); });
    ASSERT_TRUE(SoAction::enableElement(RecordingElement::type, PoDataMappingElement::getClassStackIndex()));
  }
  void TearDown() override {
    SoAction::enableElement(PoDataMappingElement::getClassTypeId(), PoDataMappingElement::getClassStackIndex());
  }
  PbLinearDataMapping first, second;
};
}  // namespace

TEST_F(Elements, APushedElementSeesThePreviousTopAndAPopHandsItBack) {
  SoState state(nullptr);
  PoDataMappingElement::set(&state, nullptr, &first);
  const SoElement* bottom = state.getConstElement(PoDataMappingElement::getClassStackIndex());
  state.push();
  EXPECT_EQ(PoDataMappingElement::get(&state), &first);  // reading pushes nothing
  PoDataMappingElement::set(&state, nullptr, &second);
  const auto* top = static_cast<const RecordingElement*>(state.getConstElement(PoDataMappingElement::getClassStackIndex()));
  EXPECT_EQ(top->below(), bottom);
  EXPECT_EQ(PoDataMappingElement::get(&state), &second);
  state.pop();
  EXPECT_EQ(PoDataMappingElement::get(&state), &first);
  EXPECT_TRUE(top->isPopped());
  EXPECT_EQ(calls, (std::vector<std::string>{"init " + id(bottom), "push " + id(top) + " above " + id(bottom),
                                             "pop " + id(bottom) + " after " + id(top)}));
}

TEST_F(Elements, APoppedElementIsReusedByTheNextPushAtItsPlace) {
  SoState state(nullptr);
  state.push();
  PoDataMappingElement::set(&state, nullptr, &first);
  const SoElement* pushed = state.getConstElement(PoDataMappingElement::getClassStackIndex());
  state.pop();
  state.push();
  PoDataMappingElement::set(&state, nullptr, &second);
  EXPECT_EQ(state.getConstElement(PoDataMappingElement::getClassStackIndex()), pushed);
  state.pop();
  EXPECT_EQ(PoDataMappingElement::get(&state), nullptr);
}

TEST_F(Elements, ReadingCapturesOnlyWhileTheCacheFlagIsSet) {
  SoState state(nullptr);
  PoDataMappingElement::get(&state);
  EXPECT_TRUE(state.getCaptured().empty());
  state.setCacheOpen(true);
  PoDataMappingElement::get(&state);
  ASSERT_EQ(state.getCaptured().size(), 1u);
  EXPECT_EQ(calls.back(), "captureThis " + id(state.getCaptured()[0]));
}

TEST(ElementStacks, TheStateHoldsTheNodeAnElementNamesUntilReplacedOrTheStateGoes) {
  SoGroup* node = new SoGroup;
  node->ref();
  {
    SoState state(nullptr);
    PoMesh1DHintsElement::set(&state, node, PoMesh1DHints::SMOOTH);
    EXPECT_EQ(node->getRefCount(), 2);
    PoMesh1DHintsElement::set(&state, nullptr, PoMesh1DHints::STAIRSX);
    EXPECT_EQ(node->getRefCount(), 1);
    PoMesh1DHintsElement::set(&state, node, PoMesh1DHints::HISTOX);
    EXPECT_EQ(PoMesh1DHintsElement::get(&state), PoMesh1DHints::HISTOX);
  }
  EXPECT_EQ(node->getRefCount(), 1);
  node->unref();
}

TEST(ElementStacks, StackIndicesAndKeysAreNewEachTime) {
  SoType type = PoDataMappingElement::getClassTypeId();
  int a = SoElement::createStackIndex(type);
  int b = SoElement::createStackIndex(type);
  EXPECT_NE(a, b);
  EXPECT_EQ(SoElement::getIdFromStackIndex(a), type);
  unsigned short k1 = SoElement::createElementKey();
  unsigned short k2 = SoElement::createElementKey();
  EXPECT_NE(k1, k2);
  EXPECT_NE(k1, SoElement::badElementKey());
  EXPECT_NE(PoDataMappingElement::getClassStackIndex(), PoMesh1DHintsElement::getClassStackIndex());
}

TEST(ElementStacks, ATypeIsEnabledOnlyOnTheStackOfAClassItDerivesFrom) {
  EXPECT_FALSE(SoAction::enableElement(PoMesh1DHintsElement::getClassTypeId(), PoDataMappingElement::getClassStackIndex()));
  EXPECT_FALSE(SoAction::enableElement(PoDataMappingElement::getClassTypeId(), -1));
  EXPECT_EQ(SoAction::getEnabledElement(PoDataMappingElement::getClassStackIndex()), PoDataMappingElement::getClassTypeId());
}

TEST(ElementStacks, AProfileGivesTheSquareOfItsValueAndNoneWithout) {
  SoState state(nullptr);
  int count = 7;
  EXPECT_EQ(PoProfileElement::getProfile(&state, 2, count), nullptr);
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(PoProfileElement::getBBox(&state).isEmpty());
  int dummy = 0;
  PoProfileElement::set(&state, nullptr, reinterpret_cast<const PoProfile*>(&dummy));
  const SbVec2f* points = PoProfileElement::getProfile(&state, -2, count);
  ASSERT_EQ(count, 4);
  EXPECT_EQ(points[0], SbVec2f(-2, -2));
  EXPECT_EQ(points[2], SbVec2f(2, 2));
  EXPECT_FALSE(PoProfileElement::getBBox(&state).isEmpty());
}
