#include "custom/CustomElement.h"

#include <Corvel/SoModuleCheck.h>

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

template <class Row>
SoType* CustomElement<Row>::classTypeId = nullptr;
template <class Row>
int CustomElement<Row>::classStackIndex = 0;
template <class Row>
typename CustomElement<Row>::InitJNIFields CustomElement<Row>::s_init;

template <class Row>
void CustomElement<Row>::InitJNIFields::init() {
  JNIEnv* env = JNIEnvHelper::getEnv();
  jclass cls = env->FindClass(kJavaClass);
  getNativeResourceHandleInternal = env->GetMethodID(cls, "getNativeResourceHandleInternal", "()J");
  push = env->GetMethodID(cls, "push", "(Lcom/kestrum/corvel/misc/SoState;)V");
  pop = env->GetMethodID(cls, "pop", "(Lcom/kestrum/corvel/misc/SoState;Lcom/kestrum/corvel/elements/SoElement;)V");
  init_ = env->GetMethodID(cls, "init", "(Lcom/kestrum/corvel/misc/SoState;)V");
  matches = env->GetMethodID(cls, "matches", "(Lcom/kestrum/corvel/elements/SoElement;)Z");
  copyMatchInfo = env->GetMethodID(cls, "copyMatchInfo", "()Lcom/kestrum/corvel/elements/SoElement;");
  captureThis = env->GetMethodID(cls, "captureThis", "(Lcom/kestrum/corvel/misc/SoState;)V");
}

template <class Row>
void CustomElement<Row>::initClass() {
  if (classTypeId == nullptr) classTypeId = new SoType(SoType::badType());
  if (ToolkitBase::getClassTypeId().isBad()) ToolkitBase::initClass();
  *classTypeId = SoType::createType(ToolkitBase::getClassTypeId(), kClassName, &createInstance, 0);
  if (classStackIndex == 0) {
    int parentIndex = ToolkitBase::getClassStackIndex();
    classStackIndex = parentIndex >= 0 ? parentIndex : SoElement::createStackIndex(*classTypeId);
  }
  s_init.init();
}

template <class Row>
int CustomElement<Row>::getClassStackIndex() {
  ExceptionHelper::throwIllegalAccessException("Invalid call.");
  return -1;
}

template <class Row>
unsigned short CustomElement<Row>::getClassElementKey() {
  ExceptionHelper::throwIllegalAccessException("Invalid call.");
  return SoElement::badElementKey();
}

template <class Row>
void* CustomElement<Row>::createInstance(SoType* type) {
  return ObjectHelper::getManagedObject(type->getName().getString());
}

template <class Row>
void* CustomElement<Row>::createParentInstance() {
  return ToolkitBase::getClassTypeId().createInstance();
}

template <class Row>
CustomElement<Row>::CustomElement() : ToolkitBase(), ICustomClass() {
  if (classTypeId == nullptr || classTypeId->isBad()) initClass();
  using CommonInit = typename Row::CommonInit;
  this->CommonInit::commonInit();  // non-virtually
}

// The global reference goes first; ICustomClass leaves it to its owner.
template <class Row>
CustomElement<Row>::~CustomElement() {
  jobject peer = tavrel::javaPeerOf(*this);
  if (peer != nullptr)
    if (JNIEnv* env = JNIEnvHelper::getEnv()) env->DeleteGlobalRef(peer);
}

template <class Row>
void CustomElement<Row>::initType(bool create, const char* name) {
  this->typeId = create ? SoType::createType(ToolkitBase::getClassTypeId(), name, &createInstance, 0)
                       : SoType::fromName(name);
}

template <class Row>
int CustomElement<Row>::initClassStackIndex(int index) {
  if (index == -1) {
    int parentIndex = ToolkitBase::getClassStackIndex();
    index = parentIndex >= 0 ? parentIndex : SoElement::createStackIndex(this->getTypeId());
  }
  this->stackIndex = index;
  return index;
}

template <class Row>
unsigned short CustomElement<Row>::initElementKey(unsigned short key) {
  elementKey = key == SoElement::badElementKey() ? SoElement::createElementKey() : key;
  return elementKey;
}

template <class Row>
void CustomElement<Row>::push(SoState* state) {
  auto call = forward("push");
  call.callVoid(s_init.push, call.object("com.kestrum.corvel.misc.SoState", state));
}

template <class Row>
void CustomElement<Row>::pop(SoState* state, const SoElement* prevTopElement) {
  auto call = forward("pop");
  jobject javaState = call.object("com.kestrum.corvel.misc.SoState", state);
  call.callVoid(s_init.pop, javaState, call.object("com.kestrum.corvel.elements.SoElement", prevTopElement));
}

template <class Row>
void CustomElement<Row>::init(SoState* state) {
  auto call = forward("init");
  call.callVoid(s_init.init_, call.object("com.kestrum.corvel.misc.SoState", state));
}

template <class Row>
SbBool CustomElement<Row>::matches(const SoElement* element) const {
  auto call = forward("matches");
  return call.callBoolean(s_init.matches, call.object("com.kestrum.corvel.elements.SoElement", element));
}

template <class Row>
SoElement* CustomElement<Row>::copyMatchInfo() const {
  return forward("copyMatchInfo").template callHandle<SoElement>(s_init.copyMatchInfo);
}

template <class Row>
void CustomElement<Row>::captureThis(SoState* state) const {
  auto call = forward("captureThis");
  call.callVoid(s_init.captureThis, call.object("com.kestrum.corvel.misc.SoState", state));
}

#define TAVREL_DEFINE_CUSTOM_ELEMENT(Name, CommonInitClass)                                                     \
  template <>                                                                                                    \
  const char* const CustomPo##Name##Element::kClassName = "CustomPo" #Name "Element";                            \
  template <>                                                                                                    \
  const char* const CustomPo##Name##Element::kJavaClass = "com/kestrum/tavrel/elements/Po" #Name "Element";      \
  template class CustomElement<                                                                                  \
      tavrel::custom::ElementRow<Po##Name##Element, IPo##Name##ElementProtectedMethodAccess, CommonInitClass>>;
TAVREL_ELEMENT_ROWS(TAVREL_DEFINE_CUSTOM_ELEMENT)
