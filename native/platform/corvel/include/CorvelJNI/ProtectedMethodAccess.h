// Access interfaces through which the Java bindings reach the toolkit's own
// implementation of protected operations of Java-extensible objects.
//
// These interfaces have no virtual destructor: objects are never deleted
// through them. The order of the operations is fixed.
#pragma once

#include <Corvel/SbBase.h>
#include <Corvel/SoType.h>

class SoNode;
class SoInput;
class SoElement;
class SoState;

class ISoNodeProtectedMethodAccess {
 public:
  virtual void internalAddChildDefaultImpl(SoNode* child) = 0;
};

class ISoFieldContainerProtectedMethodAccess {};

class ISoBaseProtectedMethodAccess {
 public:
  virtual SbBool hasMultipleWriteRefsDefaultImpl() const = 0;
  virtual const char* getFileFormatNameDefaultImpl() const = 0;
  virtual SbBool readInstanceDefaultImpl(SoInput* in, unsigned short flags) = 0;
};

// The toolkit's own element operations, for Java elements whose overrides
// call their superclass, and access to protected members of SoElement. The
// binding core calls them by slot: the order is fixed.
class ISoElementProtectedMethodAccess {
 public:
  virtual void initDefaultImpl(SoState* state) = 0;
  virtual void setPoppedDefaultImpl(int value) = 0;
  virtual SoElement* getNextFreeDefaultImpl() const = 0;
  virtual void setTypeIdDefaultImpl(SoType type) = 0;
  virtual void captureThisDefaultImpl(SoState* state) const = 0;
  virtual void captureDefaultImpl(SoState* state) const = 0;
  virtual SoElement* getNextInStackDefaultImpl() const = 0;
  virtual SoElement* copyMatchInfoDefaultImpl() const = 0;
  virtual SbBool matchesDefaultImpl(const SoElement* element) const = 0;
  virtual SbBool isPoppedDefaultImpl() const = 0;
};

class ISoReplacedElementProtectedMethodAccess {};
