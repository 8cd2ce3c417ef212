// The Tavrel extension as a whole: its initialisation and identification.
//
// init() registers the extension's classes with the toolkit (and initialises
// the core toolkit first). It may be called again: later calls only count.
// The class has no state; an instance may be made and deleted freely.
#pragma once

#include <Corvel/StandIn.h>

class PoTavrel {
 public:
  static void init();
  TAVREL_STANDIN_ONLY static void finish();
  TAVREL_STANDIN_ONLY static bool isInitialized();
  // Number of init() calls so far.
  TAVREL_STANDIN_ONLY static int getInitCount();
  static const char* getProductName();
  static const char* getVersion();
};
