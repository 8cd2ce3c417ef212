// Fields: the values that field containers (nodes) hold, and the tables that
// name them.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A field has a run-time type ("Field" for plain fields), a name (the one
//    it was made with, or the one it was last added to a field data table
//    under), a text value
//    (setValueString/getValueString, e.g. the probe's "position") and flags:
//    needsEvaluation, the three-bit fieldType and isDefault (set until a
//    value is first set).
//  - A field belongs to at most one container at a time (setContainer).
//    Neither owns the other: a field destroyed while it belongs to a
//    container leaves that container (and its field data); a container
//    destroyed first leaves its fields without a container. Giving a field
//    another container takes it out of the previous container's field data.
//  - Reading a typed field's value (its inline getValue) first evaluates the
//    field when its needsEvaluation flag is set: evaluateField() copies the
//    value of the field it is connected from, if any, and clears the flag. A
//    field connected from another one (connectFrom: made by this toolkit, and
//    by the tests) needs evaluation from the connection on and after every
//    change of the other field's value. Nothing else sets the flag.
//  - setFieldType stores the three-bit field type (the low three bits of what
//    it is given) and leaves the other flags as they are.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>
#include <Corvel/SbName.h>
#include <Corvel/SbString.h>
#include <Corvel/SoType.h>

#include <string>
#include <vector>

class SoFieldContainer;

class SoField {
 public:
  explicit SoField(const SbName& name = SbName());
  virtual ~SoField();
  SoField(const SoField&) = delete;
  SoField& operator=(const SoField&) = delete;

  static SoType getClassTypeId();
  virtual SoType getTypeId() const;

  const SbName& getName() const { return fieldName; }
  TAVREL_STANDIN_ONLY void setValueString(const SbString& v) { value = v; }
  TAVREL_STANDIN_ONLY const SbString& getValueString() const { return value; }

  // The container the field belongs to (see above); null for none.
  void setContainer(SoFieldContainer* container);
  TAVREL_STANDIN_ONLY SoFieldContainer* getContainer() const { return owner; }

  TAVREL_STANDIN_ONLY void setFieldType(int type);
  TAVREL_STANDIN_ONLY int getFieldType() const { return flags.fieldType; }
  TAVREL_STANDIN_ONLY SbBool isDefault() const { return flags.isDefault; }
  TAVREL_STANDIN_ONLY SbBool getNeedsEvaluation() const { return flags.needsEvaluation; }

  // Brings the value up to date when the field says it must (see above).
  TAVREL_STANDIN_ONLY void evaluate() const {
    if (flags.needsEvaluation) evaluateField();
  }

  // --- Used inside this toolkit and by the tests (not journaled) ---
  // The field takes the value of source whenever it is evaluated after a
  // change of source; null disconnects it.
  TAVREL_STANDIN_ONLY void connectFrom(SoField* source);
  TAVREL_STANDIN_ONLY SoField* getConnectedField() const { return source; }
  // Makes the field belong to the container without the journal (a node's
  // own fields).
  TAVREL_STANDIN_ONLY void attachTo(SoFieldContainer* container);

  // The field's flags: whether its value must be evaluated before it is
  // read, its three-bit field type (what a container was told), and whether
  // it still holds its default value.
  TAVREL_ASSUMED mutable struct Flags {
    unsigned int needsEvaluation : 1;
    unsigned int fieldType : 3;
    unsigned int isDefault : 1;
  } flags;

 protected:
  // Copies the value of the connected field (if any) and clears the flag.
  TAVREL_STANDIN_ONLY virtual void evaluateField() const;
  // Takes the value of another field of the same class; the base takes its
  // text.
  TAVREL_STANDIN_ONLY virtual void copyValueFrom(const SoField& other);
  // To be called after every change of the value: clears isDefault, and the
  // fields connected from this one need evaluation.
  TAVREL_STANDIN_ONLY void valueChanged();

 private:
  friend class SoFieldContainer;
  friend class SoFieldData;

  SbName fieldName;
  SbString value;
  SoFieldContainer* owner = nullptr;
  SoField* source = nullptr;
  std::vector<SoField*> connected;
  bool listed = false;  // in its container's field data
};

// The table of the named fields of a container (or, for a class, of the names
// only). Entries stay in the order added; adding a field under a name already
// in the table replaces that entry's field. This toolkit keeps each field's
// address, with or without a default object (it has no field offsets).
class SoFieldData {
 public:
  SoFieldData() = default;
  explicit SoFieldData(const SoFieldData* copyFrom);
  TAVREL_STANDIN_ONLY int getNumFields() const { return static_cast<int>(entries.size()); }
  TAVREL_STANDIN_ONLY const SbName& getFieldName(int index) const { return entries[index].name; }
  // The field of an entry; null for an entry that is a name only.
  SoField* getField(int index) const { return entries[index].field; }
  void addField(const SbName& name);
  void addField(SoFieldContainer* defObject, const char* name, const SoField* field);
  TAVREL_STANDIN_ONLY int indexOf(const SbName& name) const;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY SoField* findField(const SbName& name) const;
  TAVREL_STANDIN_ONLY void removeField(const SoField* field);

 private:
  struct Entry {
    SbName name;
    TAVREL_STANDIN_ONLY SoField* field;
  };
  std::vector<Entry> entries;
};
