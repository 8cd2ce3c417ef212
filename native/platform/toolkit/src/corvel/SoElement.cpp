#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoElement.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoReplacedElement.h>
#include <Corvel/SoState.h>
#include <Corvel/SoSubClass.h>

#include "../common/CachedCast.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

namespace {
SoType elementType;
SoType replacedElementType;

// Stack indices (the type that created each) and the types enabled on them.
// Stacks are made while classes register and read on every access to a
// state's element: the readers take no lock (a stack's entries are written
// before the count that shows it).
constexpr int kMaxStacks = 4096;
std::mutex stacksMutex;  // the writers'
std::atomic<SoType> creators[kMaxStacks];
std::atomic<SoType> enabled[kMaxStacks];
std::atomic<int> numStacks{0};
unsigned short lastKey = 0;

bool validStack(int stackIndex) { return stackIndex >= 0 && stackIndex < numStacks.load(std::memory_order_acquire); }
}  // namespace

// --- SoElement -----------------------------------------------------------------------

void SoElement::initClass() {
  tk::ClassRegistrationLock lock;
  if (elementType.isBad()) elementType = SoType::createType(SoType::badType(), "Element");
}

SoType SoElement::getClassTypeId() {
  initClass();
  return elementType;
}

SoElement::SoElement() = default;
SoElement::~SoElement() = default;

SoType SoElement::getTypeId() const { return typeId; }
void SoElement::push(SoState*) {}
void SoElement::pop(SoState*, const SoElement*) {}
void SoElement::print(FILE* fp) const {
  if (fp != nullptr) std::fprintf(fp, "Element %s\n", typeId.getName().getString());
}
void SoElement::commonInit() {}
void SoElement::init(SoState*) {}
unsigned short SoElement::getElementKey() const { return badElementKey(); }
int SoElement::getClassStackIndexInternal() const { return stackIndex; }
void SoElement::dyingReference() {}
void SoElement::captureThis(SoState* state) const { state->addCaptured(this); }

int SoElement::createStackIndex(SoType id) {
  CallJournal::record("SoElement::createStackIndex", id);
  return makeStackIndex(id);
}

int SoElement::makeStackIndex(SoType id) {
  std::lock_guard<std::mutex> lock(stacksMutex);
  const int index = numStacks.load(std::memory_order_relaxed);
  if (index == kMaxStacks) {
    std::fprintf(stderr, "toolkit: more than %d element stacks\n", kMaxStacks);
    std::abort();
  }
  creators[index].store(id, std::memory_order_relaxed);
  enabled[index].store(id, std::memory_order_relaxed);
  numStacks.store(index + 1, std::memory_order_release);
  return index;
}

unsigned short SoElement::createElementKey() {
  CallJournal::record("SoElement::createElementKey");
  std::lock_guard<std::mutex> lock(stacksMutex);
  if (++lastKey == badElementKey()) ++lastKey;
  return lastKey;
}

int SoElement::getNumStackIndices() { return numStacks.load(std::memory_order_acquire); }

SoType SoElement::getIdFromStackIndex(int stackIndex) {
  return validStack(stackIndex) ? creators[stackIndex].load(std::memory_order_relaxed) : SoType::badType();
}

SoElement* SoElement::getElement(SoState* state, int stackIndex) { return state->getElementForWriting(stackIndex); }

const SoElement* SoElement::getConstElement(SoState* state, int stackIndex) {
  const SoElement* element = state->getConstElement(stackIndex);
  if (element != nullptr) element->capture(state);
  return element;
}

bool SoAction::enableElement(SoType type, int stackIndex) {
  CallJournal::record("SoAction::enableElement", type, stackIndex);
  std::lock_guard<std::mutex> lock(stacksMutex);
  if (!validStack(stackIndex)) return false;
  if (type.isBad() || !type.isDerivedFrom(creators[stackIndex].load(std::memory_order_relaxed))) return false;
  enabled[stackIndex].store(type, std::memory_order_release);
  return true;
}

SoType SoAction::getEnabledElement(int stackIndex) {
  return validStack(stackIndex) ? enabled[stackIndex].load(std::memory_order_acquire) : SoType::badType();
}

// --- SoReplacedElement ---------------------------------------------------------------

void SoReplacedElement::initClass() {
  tk::ClassRegistrationLock lock;
  if (!replacedElementType.isBad()) return;
  SoElement::initClass();
  replacedElementType = SoType::createType(SoElement::getClassTypeId(), "ReplacedElement");
}

SoType SoReplacedElement::getClassTypeId() {
  initClass();
  return replacedElementType;
}

SoReplacedElement::SoReplacedElement() = default;
SoReplacedElement::~SoReplacedElement() { setNode(nullptr); }

void SoReplacedElement::commonInit() { node = nullptr; }
void SoReplacedElement::init(SoState*) { setNode(nullptr); }

SbBool SoReplacedElement::matches(const SoElement* element) const {
  const auto* other = tk::cachedCast<const SoReplacedElement>(element);
  return other != nullptr && other->node == node;
}

SoElement* SoReplacedElement::copyMatchInfo() const {
  auto* copy = static_cast<SoElement*>(getTypeId().createInstance());
  if (auto* replaced = tk::cachedCast<SoReplacedElement>(copy)) replaced->setNode(node);
  return copy;
}

void SoReplacedElement::print(FILE* fp) const {
  if (fp != nullptr) std::fprintf(fp, "Element %s, node %p\n", typeId.getName().getString(), static_cast<void*>(node));
}

void SoReplacedElement::setNode(SoNode* n) {
  if (n == node) return;
  if (n != nullptr) n->ref();
  if (node != nullptr) node->unref();
  node = n;
}

SoReplacedElement* SoReplacedElement::getElement(SoState* state, int stackIndex, SoNode* n) {
  auto* element = tk::cachedCast<SoReplacedElement>(SoElement::getElement(state, stackIndex));
  if (element != nullptr) element->setNode(n);
  return element;
}

// --- SoState -------------------------------------------------------------------------

SoState::SoState(SoAction* action) : action(action) {}

// The elements go in the reverse order of their making; each lets go of the
// node it names.
SoState::~SoState() {
  for (auto it = owned.rbegin(); it != owned.rend(); ++it) delete *it;
}

void SoState::push() { ++depth; }

void SoState::pop() {
  if (depth == 0) return;
  --depth;
  for (std::size_t i = 0; i < tops.size(); ++i) {
    while (tops[i] != nullptr && tops[i]->depth > depth && tops[i]->nextInStack != nullptr) {
      SoElement* popped = tops[i];
      SoElement* previous = popped->nextInStack;
      popped->popped = true;
      previous->nextFree = popped;
      tops[i] = previous;
      previous->pop(this, popped);
    }
  }
}

void SoState::setCacheOpen(bool open) { cacheOpen = open; }

void SoState::addCaptured(const SoElement* element) { captured.push_back(element); }

SoElement* SoState::make(int stackIndex) {
  SoType type = SoAction::getEnabledElement(stackIndex);
  if (type.isBad() || !type.canCreateInstance()) return nullptr;
  auto* element = static_cast<SoElement*>(type.createInstance());
  if (element != nullptr) owned.push_back(element);
  return element;
}

SoElement* SoState::getElement(int stackIndex) {
  if (stackIndex < 0 || stackIndex >= SoElement::getNumStackIndices()) return nullptr;
  if (tops.size() <= static_cast<std::size_t>(stackIndex)) tops.resize(stackIndex + 1, nullptr);
  if (tops[stackIndex] == nullptr) {
    SoElement* bottom = make(stackIndex);
    if (bottom == nullptr) return nullptr;
    bottom->depth = 0;
    tops[stackIndex] = bottom;
    bottom->init(this);
  }
  return tops[stackIndex];
}

const SoElement* SoState::getConstElement(int stackIndex) { return getElement(stackIndex); }

SoElement* SoState::getElementForWriting(int stackIndex) {
  SoElement* top = getElement(stackIndex);
  if (top == nullptr || top->depth >= depth) return top;
  SoElement* next = top->nextFree;
  if (next == nullptr) {
    next = make(stackIndex);
    if (next == nullptr) return nullptr;
    top->nextFree = next;
  }
  next->depth = depth;
  next->popped = false;
  next->nextInStack = top;
  tops[stackIndex] = next;
  next->push(this);
  return next;
}
