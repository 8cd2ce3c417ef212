// Access interfaces through which the Java bindings reach the toolkit's own
// implementation of protected operations of Java-extensible objects.
//
// These interfaces have no virtual destructor: objects are never deleted
// through them. The order of the operations is fixed.
#pragma once

#include <Corvel/SbBase.h>

class SoNode;
class SoInput;

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
