// The native object behind every Java subclass of the thirteen element classes
// of com.kestrum.tavrel.elements: one class template, CustomElement<Row>, and
// a table of thirteen rows (TAVREL_ELEMENT_ROWS) giving what differs from
// class to class. CustomPoBevelEdgeElement and the others are its
// instantiations.
//
// Each is a real toolkit element of its toolkit class (the primary base),
// with a Java peer (ICustomClass), an empty access interface of its own, and
// the element access interfaces that the binding core calls by slot. It gets a
// type, a stack index and an element key of its own when bound
// (initCustomClass), and forwards push, pop, init, matches, copyMatchInfo and
// captureThis to the Java methods of the same name (ForwardedCall.h: the same
// exception reporting as the Java-extensible node, with the messages
// "Exception raised during execution of Custom<Class>.<operation>.").
//
// Decisions of this class:
//  - The Java peer is held through a global reference (initJavaObject with the
//    flag false), which the destructor deletes, once. A toolkit element lives
//    in the traversal state that made it and is deleted with it; while it
//    lives, its Java object cannot be collected.
//  - The static stack-index and key queries refuse (an element's index and key
//    are its own, read through getClassStackIndexInternal and getElementKey).
//  - Nothing is locked: a Java class registers its element type once, before
//    its objects reach a traversal (com.kestrum.tavrel.elements).
#pragma once

#include <jni.h>

#include <Corvel/SoElement.h>
#include <Corvel/SoReplacedElement.h>
#include <Corvel/SoState.h>
#include <Corvel/SoType.h>
#include <CorvelJNI/ExceptionHelper.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <Tavrel/PoBevelEdgeElement.h>
#include <Tavrel/PoCellFilterElement.h>
#include <Tavrel/PoDataMappingElement.h>
#include <Tavrel/PoDateFormatMappingElement.h>
#include <Tavrel/PoDomainElement.h>
#include <Tavrel/PoIsovaluesListElement.h>
#include <Tavrel/PoLabelHintsElement.h>
#include <Tavrel/PoMesh1DFilterElement.h>
#include <Tavrel/PoMesh1DHintsElement.h>
#include <Tavrel/PoMeshElement.h>
#include <Tavrel/PoMiscTextAttrElement.h>
#include <Tavrel/PoNumericDisplayFormatElement.h>
#include <Tavrel/PoProfileElement.h>

#include "common/JavaPeer.h"
#include "custom/ForwardedCall.h"
#include "custom/PoProtectedMethodAccess.h"

// The thirteen classes: the toolkit element's name without "Po" and
// "Element", and the class whose commonInit the constructor calls.
#define TAVREL_ELEMENT_ROWS(ROW)                   \
  ROW(BevelEdge, SoReplacedElement)                \
  ROW(CellFilter, SoReplacedElement)               \
  ROW(DataMapping, SoReplacedElement)              \
  ROW(DateFormatMapping, SoReplacedElement)        \
  ROW(Domain, SoReplacedElement)                   \
  ROW(IsovaluesList, SoReplacedElement)            \
  ROW(LabelHints, SoReplacedElement)               \
  ROW(Mesh1DFilter, SoReplacedElement)             \
  ROW(Mesh1DHints, SoReplacedElement)              \
  ROW(Mesh, PoMeshElement)                         \
  ROW(MiscTextAttr, SoReplacedElement)             \
  ROW(NumericDisplayFormat, SoReplacedElement)     \
  ROW(Profile, SoReplacedElement)

namespace tavrel {
namespace custom {

// One row of the table as a type.
template <class ToolkitElement, class Access, class CommonInitClass>
struct ElementRow {
  using Base = ToolkitElement;
  using AccessInterface = Access;
  using CommonInit = CommonInitClass;
};

}  // namespace custom
}  // namespace tavrel

template <class Row>
class CustomElement : public Row::Base,
                      public ICustomClass,
                      public Row::AccessInterface,
                      public ISoReplacedElementProtectedMethodAccess,
                      public ISoElementProtectedMethodAccess {
 public:
  using ToolkitBase = typename Row::Base;

  // The seven Java methods the element calls (rows 0 to 6).
  struct InitJNIFields {
    InitJNIFields() {}
    jmethodID getNativeResourceHandleInternal;
    jmethodID push;
    jmethodID pop;
    jmethodID init_;  // "init" (the name is the lookup's)
    jmethodID matches;
    jmethodID copyMatchInfo;
    jmethodID captureThis;
    // Looks the methods up on the class's Java class, in row order.
    void init();
  };

  // Each instantiation defines these three (CustomElement.cpp).
  static const char* const kClassName;  // the class's C++ name, also its type's name
  static const char* const kJavaClass;  // the Java class, slash-separated

  static SoType* classTypeId;
  static int classStackIndex;
  static InitJNIFields s_init;

  static void initClass();
  static SoType getClassTypeId() { return classTypeId != nullptr ? *classTypeId : SoType::badType(); }
  static int getClassStackIndex();
  static unsigned short getClassElementKey();
  static void* createInstance(SoType* type);
  static void* createParentInstance();

  CustomElement();
  ~CustomElement() override;

  void initType(bool create, const char* name);
  int initClassStackIndex(int index);
  unsigned short initElementKey(unsigned short key);

  void push(SoState* state) override;
  void pop(SoState* state, const SoElement* prevTopElement) override;
  void init(SoState* state) override;
  SbBool matches(const SoElement* element) const override;
  SoElement* copyMatchInfo() const override;
  unsigned short getElementKey() const override { return elementKey; }
  int getClassStackIndexInternal() const override { return this->stackIndex; }
  void captureThis(SoState* state) const override;

  // The interface, in the class's own order.
  SoElement* getNextInStackDefaultImpl() const override { return this->nextInStack; }
  void captureDefaultImpl(SoState* state) const override { this->capture(state); }
  void captureThisDefaultImpl(SoState* state) const override { SoElement::captureThis(state); }
  void setTypeIdDefaultImpl(SoType type) override { this->typeId = type; }
  SoElement* getNextFreeDefaultImpl() const override { return this->nextFree; }
  void setPoppedDefaultImpl(int value) override { this->popped = value == 1; }
  SoElement* copyMatchInfoDefaultImpl() const override { return SoReplacedElement::copyMatchInfo(); }
  void initDefaultImpl(SoState* state) override { ToolkitBase::init(state); }
  SbBool matchesDefaultImpl(const SoElement* element) const override { return SoReplacedElement::matches(element); }
  SbBool isPoppedDefaultImpl() const override { return this->popped ? 1 : 0; }

 private:
  tavrel::custom::ForwardedCall forward(const char* operation) const {
    return tavrel::custom::ForwardedCall(*this, kClassName, operation, s_init.getNativeResourceHandleInternal);
  }

  unsigned short elementKey;
};

// The instantiations, named like the toolkit classes with "Custom" in front.
#define TAVREL_DECLARE_CUSTOM_ELEMENT(Name, CommonInitClass)                                        \
  using CustomPo##Name##Element = CustomElement<tavrel::custom::ElementRow<                        \
      Po##Name##Element, IPo##Name##ElementProtectedMethodAccess, CommonInitClass>>;               \
  template <>                                                                                       \
  const char* const CustomPo##Name##Element::kClassName;                                            \
  template <>                                                                                       \
  const char* const CustomPo##Name##Element::kJavaClass;                                            \
  extern template class CustomElement<tavrel::custom::ElementRow<                                   \
      Po##Name##Element, IPo##Name##ElementProtectedMethodAccess, CommonInitClass>>;
TAVREL_ELEMENT_ROWS(TAVREL_DECLARE_CUSTOM_ELEMENT)
#undef TAVREL_DECLARE_CUSTOM_ELEMENT
