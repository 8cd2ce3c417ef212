// Base of every reference-counted toolkit object (nodes, kits, engines).
//
// A new object has a reference count of 0; ref() raises it, unref() lowers it
// and deletes the object when it reaches 0. unrefNoDelete() lowers it without
// deleting.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>
#include <Corvel/SbName.h>
#include <Corvel/SoType.h>
#include <atomic>

class SoInput;

class SoBase {
 public:
  static SoType getClassTypeId();
  static void initClass();

  TAVREL_STANDIN_ONLY void ref() const;
  TAVREL_STANDIN_ONLY void unref() const;
  TAVREL_STANDIN_ONLY void unrefNoDelete() const;
  TAVREL_STANDIN_ONLY int getRefCount() const { return refCount.load(); }

  // Virtual operations, in the order of the object's table.
  virtual void touch();
  virtual SbName getName() const;
  virtual void setName(const SbName& name);
  virtual const char* getFileFormatName() const;
  virtual SoType getTypeId() const = 0;

  // True while the object is referenced more than once by the write in
  // progress (set by the write machinery, read by the inline accessor).
  TAVREL_ASSUMED SbBool hasMultipleWriteRefs() const { return writeMultipleRefs; }
  TAVREL_STANDIN_ONLY void setMultipleWriteRefs(SbBool on) { writeMultipleRefs = on; }

  // Number of touch() calls this object received.
  TAVREL_STANDIN_ONLY unsigned getTouchCount() const { return touchCount; }

 protected:
  SoBase();
  virtual ~SoBase();
  virtual SbBool readInstance(SoInput* in, unsigned short flags) = 0;

 private:
  mutable std::atomic<int> refCount{0};
  SbName objectName;
  SbBool writeMultipleRefs = 0;
  unsigned touchCount = 0;
};

// Marks the construction of a toolkit object; constructors of objects that
// register types run their registration under this guard.
class SoBaseInitializer {
 public:
  explicit SoBaseInitializer(SoBase* object);
  ~SoBaseInitializer();
  SoBaseInitializer(const SoBaseInitializer&) = delete;
  SoBaseInitializer& operator=(const SoBaseInitializer&) = delete;
  // True while the calling thread is inside a guard.
  TAVREL_STANDIN_ONLY static bool isActive();
};
