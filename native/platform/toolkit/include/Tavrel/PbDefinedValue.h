// Tells the fault-mesh computation which values of a mesh are defined. This
// one says that every value is defined; getUndef gives 0 for every set.
// The member functions are inline: they are built into each user.
#pragma once

#include <Corvel/CallJournal.h>

class PbDefinedValue {
 public:
  PbDefinedValue() { CallJournal::record("PbDefinedValue::PbDefinedValue"); }
  virtual ~PbDefinedValue() { CallJournal::record("PbDefinedValue::~PbDefinedValue"); }
  // Non-zero when the value at (i, j) is defined.
  virtual int operator()(float value, int i, int j) { return 1; }
  // The value that stands for an undefined one in set i.
  virtual float getUndef(int i) {
    CallJournal::record("PbDefinedValue::getUndef", i);
    return 0.0f;
  }
};
