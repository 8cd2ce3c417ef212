// Version check object that every compilation unit of a binding holds as a
// file-static object. The stand-in only counts the objects made, per argument.
#pragma once

class SoModuleCheck {
 public:
  explicit SoModuleCheck(int version);
  static int getInstanceCount();
  static int getInstanceCount(int version);
};
