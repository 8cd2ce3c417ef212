// The domain of a graph: the box of user coordinates that a graph node draws
// in, and how that box is scaled into the node's own space.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A domain keeps one 3D box. A 2D domain (set through a 2D form) has z
//    from 0 to 0 and remembers that it is 2D; get2DDomain gives the x and y
//    parts of the box whatever the domain is.
//  - The bounding-box type applies once, when the box is set:
//      ASIS            the box as given;
//      MINBOUNDINGCUBE the smallest cube (square for a 2D domain) around the
//                      box, each side grown on both ends to the longest one;
//      MAXBOUNDEDCUBE  the largest cube (square) inside the box, each side
//                      shrunk on both ends to the shortest one.
//    The forms that take a box by reference write the resulting box back
//    into it. Any other type value is taken as ASIS.
//  - getMatrix() maps the box into the node's space (row vectors, see
//    SbMatrix.h) according to the transform type:
//      TRANSFORM01       each axis on its own onto [0, 1];
//      SCALEXFIXED       x onto [0, 1], y and z with the same scale;
//      SCALEYFIXED       y onto [0, 1], x and z with the same scale;
//      SCALEZFIXED       z onto [0, 1], x and y with the same scale;
//      SCALEMAXXYZFIXED  the longest side onto [0, 1], the others with the
//                        same scale.
//    Each axis starts at 0 (its minimum maps to 0). A side of length 0 (or
//    not finite) scales by 1; a 2D domain leaves z unchanged. Any other
//    transform type value is taken as TRANSFORM01.
//  - getMatrixTransform() gives the address of the domain's own copy of that
//    matrix, kept up to date by the setters; it lives as long as the domain.
//    getTransform() gives null: this toolkit makes no transform node.
//  - A new domain is the 3D unit box [0, 1]^3 with TRANSFORM01.
//  - Two domains are equal when their boxes (float by float), their 2D-ness
//    and their transform types are.
//  - The transform type is read directly (inline accessor).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBox.h>
#include <Corvel/SbMatrix.h>
#include <Tavrel/PbBase.h>

class SoNode;

class PbDomain : public PbBase {
 public:
  enum TransformType : int {
    TRANSFORM01 = 0,
    SCALEXFIXED = 1,
    SCALEYFIXED = 2,
    SCALEZFIXED = 3,
    SCALEMAXXYZFIXED = 4
  };
  enum BoundingBoxType : int { ASIS = 0, MINBOUNDINGCUBE = 1, MAXBOUNDEDCUBE = 2 };

  PbDomain();
  PbDomain(const PbDomain& other);
  PbDomain(SbBox2f& box, BoundingBoxType type);
  PbDomain(SbBox3f& box, BoundingBoxType type);
  PbDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxType type);
  PbDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax, BoundingBoxType type);
  ~PbDomain() override;

  void setDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxType type);
  void setDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax, BoundingBoxType type);
  void setDomain(SbBox2f& box, BoundingBoxType type);
  void setDomain(SbBox3f& box, BoundingBoxType type);

  void getDomain(SbBox2f& box) const;
  void getDomain(SbBox3f& box) const;
  SbMatrix getMatrix() const;

  void setTransformType(TransformType type);
  TAVREL_ASSUMED TransformType getTransformType() const { return transformType; }

  const SbMatrix* getMatrixTransform() const;
  SoNode* getTransform() const;

  int operator==(const PbDomain& other) const;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY bool is2D() const { return twoD; }
  const SbBox3f& box() const { return domainBox; }
  const SbMatrix& matrix() const { return transform; }

 private:
  void set(const SbBox3f& box, bool is2D, BoundingBoxType type);
  void update();

  SbBox3f domainBox;
  bool twoD = false;
  TransformType transformType = TRANSFORM01;
  SbMatrix transform;
};
