#include <Corvel/CallJournal.h>
#include <Corvel/SoField.h>
#include <Corvel/SoFieldContainer.h>
#include <Corvel/SoSubClass.h>

#include <algorithm>

// --- SoField --------------------------------------------------------------------

namespace {
SoType fieldType;
}

SoType SoField::getClassTypeId() {
  tk::ClassRegistrationLock lock;
  if (fieldType.isBad()) fieldType = SoType::createType(SoType::badType(), "Field");
  return fieldType;
}

SoType SoField::getTypeId() const { return getClassTypeId(); }

SoField::SoField(const SbName& name) : fieldName(name) {
  flags.needsEvaluation = 0;
  flags.fieldType = 0;
  flags.isDefault = 1;
}

SoField::~SoField() {
  connectFrom(nullptr);
  for (SoField* f : connected) f->source = nullptr;
  if (owner != nullptr) owner->detachField(this);
}

void SoField::setContainer(SoFieldContainer* container) {
  CallJournal::record("SoField::setContainer", static_cast<const void*>(container));
  attachTo(container);
}

void SoField::attachTo(SoFieldContainer* container) {
  if (container == owner) return;
  if (owner != nullptr) owner->detachField(this);
  owner = container;
  if (owner != nullptr) owner->attachField(this);
}

void SoField::setFieldType(int type) {
  CallJournal::record("SoField::setFieldType", type);
  flags.fieldType = static_cast<unsigned int>(type) & 7u;
}

void SoField::connectFrom(SoField* from) {
  if (source != nullptr) {
    auto& list = source->connected;
    list.erase(std::remove(list.begin(), list.end(), this), list.end());
  }
  source = from == this ? nullptr : from;
  if (source != nullptr) {
    source->connected.push_back(this);
    flags.needsEvaluation = 1;
  }
}

void SoField::evaluateField() const {
  CallJournal::record("SoField::evaluateField");
  flags.needsEvaluation = 0;
  // The value is the field's own even when the field is read through a
  // const path; evaluation is what brings it up to date.
  if (source != nullptr) const_cast<SoField*>(this)->copyValueFrom(*source);
}

void SoField::copyValueFrom(const SoField& other) { value = other.value; }

void SoField::valueChanged() {
  flags.isDefault = 0;
  for (SoField* f : connected) f->flags.needsEvaluation = 1;
}

// --- SoFieldData ----------------------------------------------------------------

SoFieldData::SoFieldData(const SoFieldData* copyFrom) {
  if (copyFrom) entries = copyFrom->entries;
}

void SoFieldData::addField(const SbName& name) { entries.push_back(Entry{name, nullptr}); }

void SoFieldData::addField(SoFieldContainer* defObject, const char* name, const SoField* field) {
  CallJournal::record("SoFieldData::addField", static_cast<const void*>(defObject), name,
                      static_cast<const void*>(field));
  SoField* f = const_cast<SoField*>(field);
  if (f != nullptr) {
    f->listed = true;
    f->fieldName = name;
  }
  const int index = indexOf(name);
  if (index >= 0)
    entries[index].field = f;
  else
    entries.push_back(Entry{name, f});
}

int SoFieldData::indexOf(const SbName& name) const {
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i].name == name) return static_cast<int>(i);
  return -1;
}

SoField* SoFieldData::findField(const SbName& name) const {
  const int index = indexOf(name);
  return index < 0 ? nullptr : entries[index].field;
}

void SoFieldData::removeField(const SoField* field) {
  if (field != nullptr) const_cast<SoField*>(field)->listed = false;
  entries.erase(std::remove_if(entries.begin(), entries.end(), [field](const Entry& e) { return e.field == field; }),
                entries.end());
}
