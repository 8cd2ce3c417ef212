// Tells the fault-mesh computation which values of a mesh are defined. This
// one says that every value is defined; getUndef gives 0 for every set.
#pragma once

class PbDefinedValue {
 public:
  PbDefinedValue();
  virtual ~PbDefinedValue();
  // Non-zero when the value at (i, j) is defined.
  virtual int operator()(float value, int i, int j);
  // The value that stands for an undefined one in set i.
  virtual float getUndef(int i);
};
