// Base of objects that hold fields.
//
// Behaviour of this toolkit: every container has a field data table of its
// own (getFieldData; the toolkit's classes share one per class, this one
// keeps one per object so that fields added to one object stay out of the
// others). getField(name) finds the container's own fields (addOwnField),
// then the fields of its field data. The container keeps the fields that
// belong to it by address and owns none of them (see SoField.h): when it is
// destroyed they are left without a container.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SoBase.h>
#include <Corvel/SoField.h>

#include <vector>

class SoFieldContainer : public SoBase {
 public:
  static SoType getClassTypeId();
  static void initClass();

  // Virtual operations that follow those of SoBase.
  virtual SoField* getField(const SbName& name) const;
  virtual SoField* getEventIn(const SbName& name) const;
  virtual SoField* getEventOut(const SbName& name) const;
  virtual int getIsBuiltIn() const;
  virtual const SoFieldData* getFieldData() const;

  // Reads "name value" pairs for the fields the container has; true when the
  // input is present and every name read is one of its fields.
  SbBool readInstance(SoInput* in, unsigned short flags) override;

  // Makes a field of the given name (stand-in convenience for tests).
  TAVREL_STANDIN_ONLY SoField* addOwnField(const SbName& name);

 protected:
  SoFieldContainer() = default;
  ~SoFieldContainer() override;

 private:
  friend class SoField;
  // A field starts or stops belonging to this container.
  void attachField(SoField* field);
  void detachField(SoField* field);

  std::vector<SoField*> ownFields;
  std::vector<SoField*> attachedFields;
  SoFieldData instanceFieldData;
};
