// Run-time types. A type has a name, a parent type, an optional creation
// function and a short of class data (nodes keep their action-method index
// there). The zero type value is the bad type: it has the empty name, no
// parent, and isBad() is true. Types are never removed.
//
// createType always makes a new type, also for a name that is already
// registered; fromName then finds the newest type of that name.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbName.h>
#include <string>

class SoType {
 public:
  typedef void* (*CreateMethod)(SoType*);

  SoType() = default;  // the zero type value, which is the bad type

  TAVREL_ASSUMED static SoType badType() { return SoType(); }
  TAVREL_ASSUMED bool isBad() const { return storage == 0; }

  static SoType createType(SoType parent, const SbName& name, CreateMethod method = nullptr, short data = 0);
  static SoType fromName(const SbName& name);
  TAVREL_STANDIN_ONLY static int getNumTypes();

  SbName getName() const;
  TAVREL_STANDIN_ONLY SoType getParent() const;
  TAVREL_STANDIN_ONLY bool isDerivedFrom(SoType t) const;
  TAVREL_STANDIN_ONLY short getData() const;
  TAVREL_STANDIN_ONLY bool canCreateInstance() const;
  void* createInstance() const;
  TAVREL_STANDIN_ONLY unsigned int getKey() const { return storage; }

  bool operator==(const SoType& t) const { return storage == t.storage; }
  bool operator!=(const SoType& t) const { return storage != t.storage; }

 private:
  explicit SoType(unsigned int key) : storage(key) {}
  unsigned int storage = 0;
};

void journalFormat(std::string& out, const SoType& t);
