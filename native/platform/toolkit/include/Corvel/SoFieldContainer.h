// Base of objects that hold fields.
#pragma once

#include <Corvel/SoBase.h>
#include <Corvel/SoField.h>

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
  SoField* addOwnField(const SbName& name);

 protected:
  SoFieldContainer() = default;
  ~SoFieldContainer() override;

 private:
  std::vector<SoField*> ownFields;
};
