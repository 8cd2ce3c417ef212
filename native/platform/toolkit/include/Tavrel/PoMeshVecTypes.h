// The enumerations shared by the vector representations of 2D and 3D meshes
// (PoMesh2DVec, PoMesh3DVec): which vectors are left out, and how bodies and
// arrows are shaped, sized and coloured. Each class inherits them, so they
// read PoMesh2DVec::CONE and PoMesh3DVec::CONE.
#pragma once

struct PoMeshVecTypes {
  enum EliminationStatusType : int { NONE = 0, TOOSMALL = 1, TOOLONG = 2, TOOSMALLORLONG = 3 };
  enum BodyShapes : int { NOBODY = 0, LINE = 1, CYLINDER = 2 };
  enum BodyLengthTypes : int { CONSTANTLENGTH = 0, RELATIVELENGTH = 1 };
  enum BodyRadiusTypes : int { CONSTANTRADIUS = 0, RELATIVERADIUS = 1 };
  enum ArrowShapes : int {
    NOSHAPE = 0,
    POINT = 1,
    CHEVRON = 2,
    TRIANGLE = 3,
    RECTANGLE = 4,
    CONE = 5,
    BOX = 6,
    SPHERE = 7,
    INDIRECTCHEVRON = 8,
    INDIRECTTRIANGLE = 9,
    INDIRECTCONE = 10
  };
  enum ArrowHeightTypes : int { CONSTANTHEIGHT = 0, RELATIVEHEIGHT = 1 };
  enum ArrowColoringTypes : int { CONSTANTCOLOR = 0, MODULEMAPPINGCOLOR = 1, SCALARMAPPINGCOLOR = 2 };
};
