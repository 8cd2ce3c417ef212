// A cube of axes around a box, from a start corner to an end corner.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - PoAutoCubeAxis(start, end, xType, yType, zType, xTitle, yTitle,
//    zTitle) keeps the corners, the types and the titles (a null title as
//    ""). The default constructor makes the cube from (0, 0, 0) to
//    (1, 1, 1), all LINEAR, no titles.
//  - GLRender journals itself, then renders as every graph node does
//    (PoBase.h: rebuilt first when modified). Its build makes nothing but
//    journals itself.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoBase.h>

class PoAutoCubeAxis : public PoBase {
  PO_GRAPH_KIT_HEADER(PoAutoCubeAxis)

 public:
  enum AxisType : int { LINEAR = 0, LOGARITHMIC = 1, GENERALIZED = 2 };

  PoAutoCubeAxis();
  PoAutoCubeAxis(const SbVec3f& start, const SbVec3f& end, AxisType xType, AxisType yType, AxisType zType,
                 const char* xTitle, const char* yTitle, const char* zTitle);

  void GLRender(SoGLRenderAction* action) override;
  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  SbVec3f start, end;
  TAVREL_STANDIN_ONLY AxisType types[3] = {LINEAR, LINEAR, LINEAR};
  TAVREL_STANDIN_ONLY SbString titles[3];

 protected:
  ~PoAutoCubeAxis() override;
  TAVREL_STANDIN_ONLY void build() override;
};
