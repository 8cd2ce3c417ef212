// Fields and field tables. The stand-in's fields hold a name, a text value and
// the container they belong to (null for a field made on its own).
#pragma once

#include <Corvel/SbName.h>
#include <Corvel/SbString.h>
#include <string>
#include <vector>

class SoFieldContainer;

class SoField {
 public:
  explicit SoField(const SbName& name = SbName()) : fieldName(name) {}
  virtual ~SoField();
  const SbName& getName() const { return fieldName; }
  void setValueString(const SbString& v) { value = v; }
  const SbString& getValueString() const { return value; }
  void setContainer(SoFieldContainer* owner) { container = owner; }
  SoFieldContainer* getContainer() const { return container; }

 private:
  SbName fieldName;
  SbString value;
  SoFieldContainer* container = nullptr;
};

// The table of field names of a class. A table made from another one starts
// with that table's entries.
class SoFieldData {
 public:
  SoFieldData() = default;
  explicit SoFieldData(const SoFieldData* copyFrom);
  int getNumFields() const { return static_cast<int>(names.size()); }
  const SbName& getFieldName(int index) const { return names[index]; }
  void addField(const SbName& name) { names.push_back(name); }
  int indexOf(const SbName& name) const;

 private:
  std::vector<SbName> names;
};
