// Macros that give a toolkit class its run-time type.
//
// The class type is registered on first use (getClassTypeId or initClass) and
// lives for the rest of the process. Concrete classes register a creation
// function that makes a new instance with the default constructor; abstract
// ones register none. Node classes take an action-method index each.
#pragma once

#include <Corvel/CallJournal.h>
#include <Corvel/SoField.h>
#include <Corvel/SoType.h>

namespace tk {
// Serialises class registration across threads (recursive).
void lockClassRegistration();
void unlockClassRegistration();
struct ClassRegistrationLock {
  ClassRegistrationLock() { lockClassRegistration(); }
  ~ClassRegistrationLock() { unlockClassRegistration(); }
};
int takeNodeActionMethodIndex();
}  // namespace tk

namespace tk {
// Class initialisers run by the toolkit's init(); every class defined with the
// macros below adds its own when its library is loaded.
void addClassInitializer(void (*initClass)());
void runClassInitializers();
struct ClassInitializerEntry {
  explicit ClassInitializerEntry(void (*initClass)()) { addClassInitializer(initClass); }
};
}  // namespace tk

// Declarations for a class with a run-time type (nodes and other objects).
#define SO_TYPED_HEADER(className)                       \
 public:                                                 \
  static SoType getClassTypeId();                        \
  static void initClass();                               \
  SoType getTypeId() const override;                     \
  static const SoFieldData** getFieldDataPtr() { return &classFieldData; } \
                                                         \
 private:                                                \
  static SoType s_classTypeId;                           \
  static const SoFieldData* classFieldData;              \
                                                         \
 public:

// Shared body. CREATE is a creation function or nullptr; DATA the type's data.
#define SO__TYPED_SOURCE(className, parentName, typeName, CREATE, DATA)          \
  SoType className::s_classTypeId;                                               \
  const SoFieldData* className::classFieldData = nullptr;                        \
  void className::initClass() {                                                  \
    tk::ClassRegistrationLock lock_;                                             \
    if (!s_classTypeId.isBad()) return;                                          \
    parentName::initClass();                                                     \
    s_classTypeId = SoType::createType(parentName::getClassTypeIdUnjournaled(), \
                                       typeName, CREATE, DATA);                  \
    classFieldData = new SoFieldData(*parentName::getFieldDataPtr());            \
  }                                                                              \
  SoType className::getClassTypeId() {                                           \
    CallJournal::record(#className "::getClassTypeId");                          \
    initClass();                                                                 \
    return s_classTypeId;                                                        \
  }                                                                              \
  SoType className::getClassTypeIdUnjournaled() {                                \
    initClass();                                                                 \
    return s_classTypeId;                                                        \
  }                                                                              \
  SoType className::getTypeId() const { return s_classTypeId; }                  \
  static tk::ClassInitializerEntry className##_initializer(&className::initClass);

#define SO_NODE_HEADER(className) \
  SO_TYPED_HEADER(className)      \
  static SoType getClassTypeIdUnjournaled();

#define SO_NODE_SOURCE(className, parentName, typeName)                                  \
  SO__TYPED_SOURCE(className, parentName, typeName,                                      \
                   [](SoType*) -> void* { return static_cast<SoNode*>(new className); }, \
                   static_cast<short>(tk::takeNodeActionMethodIndex()))

#define SO_NODE_ABSTRACT_SOURCE(className, parentName, typeName) \
  SO__TYPED_SOURCE(className, parentName, typeName, nullptr,     \
                   static_cast<short>(tk::takeNodeActionMethodIndex()))
