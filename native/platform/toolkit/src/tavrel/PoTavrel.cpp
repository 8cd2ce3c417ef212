#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoSubClass.h>
#include <Tavrel/PoTavrel.h>

#include <atomic>

namespace {
std::atomic<int> initCount{0};
}

void PoTavrel::init() {
  CallJournal::record("PoTavrel::init");
  SoNode::initClass();
  SoAction::initClass();
  tk::runClassInitializers();
  ++initCount;
}

void PoTavrel::finish() { CallJournal::record("PoTavrel::finish"); }

bool PoTavrel::isInitialized() { return initCount.load() > 0; }

int PoTavrel::getInitCount() { return initCount.load(); }

const char* PoTavrel::getProductName() {
  CallJournal::record("PoTavrel::getProductName");
  return "Kestrum Tavrel";
}

const char* PoTavrel::getVersion() {
  CallJournal::record("PoTavrel::getVersion");
  return "10.4.0";
}
