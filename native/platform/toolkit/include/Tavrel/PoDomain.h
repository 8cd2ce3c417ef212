// A property node that gives the graphs after it their domain: a box of user
// coordinates and how it is scaled (PbDomain, see there for the bounding-box
// types, the transform types and the matrix).
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Fields, with their defaults: "min" "0 0 0", "max" "1 1 1" (the box as
//    given to setValues, before the bounding-box type applies), "is2D"
//    FALSE, "bndBoxType" ASIS, "transformType" TRANSFORM01. setValues writes
//    the first four ("min" and "max" with z 0 and "is2D" TRUE in the 2D
//    form); a caller may also set them, and "transformType", by hand.
//  - The domain's PbDomain is made from the fields whenever it is used: the
//    box and its bounding-box type (a 2D domain when "is2D"), then the
//    transform type.
//  - getMatrixTransform() gives the address of that domain's matrix, which
//    maps the box into the node's space; the address is the same for the
//    node's whole life, the matrix is brought up to date by each call.
//    getTransform() gives null: this toolkit makes no transform node.
//  - When traversed the node becomes the state's current domain
//    (PoDomainElement, with its PbDomain).
#pragma once

#include <Corvel/SbMatrix.h>
#include <Tavrel/PbDomain.h>
#include <Tavrel/PoPropertyNode.h>

class PoDomain : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoDomain)

 public:
  enum TransformType : int {
    TRANSFORM01 = 0,
    SCALEXFIXED = 1,
    SCALEYFIXED = 2,
    SCALEZFIXED = 3,
    SCALEMAXXYZFIXED = 4
  };
  enum BoundingBoxType : int { ASIS = 0, MINBOUNDINGCUBE = 1, MAXBOUNDEDCUBE = 2 };

  void setValues(const SbVec2f& min, const SbVec2f& max, BoundingBoxType type);
  void setValues(const SbVec3f& min, const SbVec3f& max, BoundingBoxType type);
  SoNode* getTransform() const;
  const SbMatrix* getMatrixTransform() const;

  // --- Used inside this toolkit (not journaled) ---
  const PbDomain* getDomain() const;

 private:
  SoField* minField;
  SoField* maxField;
  SoField* is2DField;
  SoField* bndBoxTypeField;
  SoField* transformTypeField;
  mutable PbDomain domain;
};
