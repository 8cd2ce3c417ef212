// Version check object that every compilation unit of a binding holds as a
// file-static object. The stand-in only counts the objects made, per argument.
#pragma once

#include <Corvel/StandIn.h>

class SoModuleCheck {
 public:
  explicit SoModuleCheck(int version);
  TAVREL_STANDIN_ONLY static int getInstanceCount();
  TAVREL_STANDIN_ONLY static int getInstanceCount(int version);
};
