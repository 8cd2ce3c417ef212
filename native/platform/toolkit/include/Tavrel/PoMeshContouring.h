// Contour lines of a 2D mesh's values, with annotations. The annotation
// numbers use a numeric display format and a text attribute object, kept by
// address like the objects of PoMesh (null: the defaults).
#pragma once

#include <Tavrel/PoMesh2D.h>

class PbNumericDisplayFormat;
class PbMiscTextAttr;

class PoMeshContouring : public PoMesh2D {
  SO_KIT_HEADER(PoMeshContouring)

 public:
  enum AnnotPaths : int { TANGENTIALPATH = 0, HORIZONTALPATH = 1, VERTICALPATH = 2 };
  enum AnnotCrossStatusType : int { CROSSCONTOUR = 0, CROSSMINORCONTOUR = 1, DONTCROSSCONTOUR = 2 };

  PoMeshContouring();

  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;
  void setMiscTextAttr(PbMiscTextAttr* textAttr);
  PbMiscTextAttr* getMiscTextAttr() const;

 protected:
  ~PoMeshContouring() override;

 private:
  PbNumericDisplayFormat* format = nullptr;
  PbMiscTextAttr* miscTextAttr = nullptr;
};
