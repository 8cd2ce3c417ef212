#include <Corvel/CallJournal.h>
#include <Corvel/SoBase.h>
#include <Corvel/SoFieldContainer.h>
#include <Corvel/SoInput.h>
#include <Corvel/SoSubClass.h>

#include <algorithm>
#include <mutex>
#include <cctype>
#include <vector>

namespace tk {
namespace {
std::recursive_mutex& registrationMutex() {
  static std::recursive_mutex m;
  return m;
}
}  // namespace
void lockClassRegistration() { registrationMutex().lock(); }
void unlockClassRegistration() { registrationMutex().unlock(); }
}  // namespace tk

// --- SoBase ------------------------------------------------------------------

namespace {
SoType baseType;
SoType fieldContainerType;
thread_local int initializerDepth = 0;
}  // namespace

void SoBase::initClass() {
  tk::ClassRegistrationLock lock;
  if (baseType.isBad()) baseType = SoType::createType(SoType::badType(), "Base");
}

SoType SoBase::getClassTypeId() {
  initClass();
  return baseType;
}

SoBase::SoBase() = default;
SoBase::~SoBase() = default;

void SoBase::ref() const { refCount.fetch_add(1); }

void SoBase::unref() const {
  if (refCount.fetch_sub(1) == 1) delete this;
}

void SoBase::unrefNoDelete() const { refCount.fetch_sub(1); }

void SoBase::touch() {
  CallJournal::record("SoBase::touch");
  ++touchCount;
}

SbName SoBase::getName() const { return objectName; }

void SoBase::setName(const SbName& name) {
  CallJournal::record("SoBase::setName", name);
  objectName = name;
}

const char* SoBase::getFileFormatName() const { return getTypeId().getName().getString(); }

SoBaseInitializer::SoBaseInitializer(SoBase* object) {
  CallJournal::record("SoBaseInitializer::SoBaseInitializer", static_cast<const void*>(object));
  ++initializerDepth;
}

SoBaseInitializer::~SoBaseInitializer() { --initializerDepth; }

bool SoBaseInitializer::isActive() { return initializerDepth > 0; }

// --- input --------------------------------------------------------------------

SoInput::~SoInput() = default;

bool SoInput::read(std::string& word) {
  while (position < buffer.size() && std::isspace(static_cast<unsigned char>(buffer[position]))) ++position;
  if (position >= buffer.size()) return false;
  std::size_t start = position;
  while (position < buffer.size() && !std::isspace(static_cast<unsigned char>(buffer[position]))) ++position;
  word.assign(buffer, start, position - start);
  return true;
}

// --- SoFieldContainer ----------------------------------------------------------

void SoFieldContainer::initClass() {
  tk::ClassRegistrationLock lock;
  SoBase::initClass();
  if (fieldContainerType.isBad())
    fieldContainerType = SoType::createType(baseType, "FieldContainer");
}

SoType SoFieldContainer::getClassTypeId() {
  initClass();
  return fieldContainerType;
}

SoFieldContainer::~SoFieldContainer() {
  for (SoField* f : attachedFields) f->owner = nullptr;
  for (SoField* f : ownFields) delete f;
}

SoField* SoFieldContainer::getField(const SbName& name) const {
  CallJournal::record("SoFieldContainer::getField", name);
  for (SoField* f : ownFields)
    if (f->getName() == name) return f;
  const SoFieldData* data = getFieldData();
  return data != nullptr ? data->findField(name) : nullptr;
}

SoField* SoFieldContainer::getEventIn(const SbName& name) const {
  CallJournal::record("SoFieldContainer::getEventIn", name);
  return nullptr;
}

SoField* SoFieldContainer::getEventOut(const SbName& name) const {
  CallJournal::record("SoFieldContainer::getEventOut", name);
  return nullptr;
}

int SoFieldContainer::getIsBuiltIn() const { return 1; }

const SoFieldData* SoFieldContainer::getFieldData() const {
  CallJournal::record("SoFieldContainer::getFieldData");
  return &instanceFieldData;
}

void SoFieldContainer::attachField(SoField* field) { attachedFields.push_back(field); }

void SoFieldContainer::detachField(SoField* field) {
  attachedFields.erase(std::remove(attachedFields.begin(), attachedFields.end(), field), attachedFields.end());
  if (!field->listed) return;
  if (const SoFieldData* data = getFieldData()) const_cast<SoFieldData*>(data)->removeField(field);
}

SbBool SoFieldContainer::readInstance(SoInput* in, unsigned short flags) {
  CallJournal::record("SoFieldContainer::readInstance", static_cast<const void*>(in), flags);
  if (in == nullptr) return 0;
  std::string name, value;
  while (in->read(name)) {
    SoField* f = nullptr;
    for (SoField* own : ownFields)
      if (own->getName() == SbName(name)) f = own;
    if (f == nullptr || !in->read(value)) return 0;
    f->setValueString(SbString(value));
  }
  return 1;
}

SoField* SoFieldContainer::addOwnField(const SbName& name) {
  ownFields.push_back(new SoField(name));
  ownFields.back()->setContainer(this);
  return ownFields.back();
}

// --- class initialisers --------------------------------------------------------

namespace tk {
namespace {
std::vector<void (*)()>& classInitializers() {
  static std::vector<void (*)()> list;
  return list;
}
}  // namespace

void addClassInitializer(void (*initClass)()) {
  ClassRegistrationLock lock;
  classInitializers().push_back(initClass);
}

void runClassInitializers() {
  ClassRegistrationLock lock;
  // Initialisers may register further classes; iterate by index.
  for (std::size_t i = 0; i < classInitializers().size(); ++i) classInitializers()[i]();
}
}  // namespace tk
