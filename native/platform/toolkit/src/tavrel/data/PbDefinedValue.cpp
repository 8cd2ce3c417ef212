#include <Tavrel/PbDefinedValue.h>

#include <Corvel/CallJournal.h>

PbDefinedValue::PbDefinedValue() { CallJournal::record("PbDefinedValue::PbDefinedValue"); }

PbDefinedValue::~PbDefinedValue() { CallJournal::record("PbDefinedValue::~PbDefinedValue"); }

int PbDefinedValue::operator()(float, int, int) { return 1; }

float PbDefinedValue::getUndef(int i) {
  CallJournal::record("PbDefinedValue::getUndef", i);
  return 0.0f;
}
