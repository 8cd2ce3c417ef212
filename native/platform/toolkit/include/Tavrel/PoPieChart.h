// Base of the pie charts: slices with names, values and colours around a
// centre, a text attribute and a number format for their annotations.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Slices. The chart keeps numSlices (a short) and copies that many names
//    and values; a null names or values pointer gives empty names or zero
//    values. Its colours are the numColors colours of its colour array
//    copied (none when the pointer is null or numColors is not positive).
//    Slice i gets colour i modulo the number of colours.
//  - Angles. The slices go counter-clockwise from the angle 0 (the x axis),
//    in order, each spanning 2 pi value / total, the total being the sum of
//    the positive values; a slice whose value is not positive spans 0. With
//    no positive value there is nothing to draw.
//  - Translation. setSliceToTranslate(slice, distance) moves that slice out
//    from the centre by the distance along the middle of its span (a slice
//    number out of range is ignored); getSliceToTranslate gives it back, 0
//    for a slice never moved or out of range.
//  - Picking. getPickedSliceNumber(path, slice) looks at a path that
//    contains this chart: the slice under the path's picked point (scene
//    coordinates, its x and y; see SoPath) is the one whose span holds the
//    point's angle about its (translated) centre, within the radius. It
//    writes that slice into slice and returns 1; for a path without this
//    chart, or a point on no slice, it leaves slice unchanged and returns
//    0.
//  - The text attribute and the format are kept by address (null: none) and
//    given back as they are.
//  - setMiscTextAttr, setFormat and setSliceToTranslate change the chart
//    (see PoBase): with the immediate update method it is rebuilt at once.
//  - The build makes one filled polygon per slice of positive span (the
//    centre, then points of the arc every 1/64 turn or less), in the plane
//    z = centre z, mapped through the matrix of the domain when the node
//    has one.
//  - A render traversal keeps those polygons in the slices' colours, and
//    each slice's name (if any) outside it, along the middle of its span,
//    written in the slice's colour.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoChart.h>

#include <string>
#include <vector>

class PbMiscTextAttr;
class PbNumericDisplayFormat;
class SoPath;

class PoPieChart : public PoChart {
  PO_GRAPH_KIT_HEADER(PoPieChart)

 public:
  enum IntAnnotPosition : int { RADIALINTPOS = 0, HORINTPOS = 1 };
  enum ExtAnnotPosition : int {
    RADIALEXTPOS = 0,
    HOREXTPOS = 1,
    HORALIGNEDEXTPOS = 2,
    VERTALIGNEDEXTPOS = 3,
    SQUAREALIGNEDEXTPOS = 4
  };
  enum Alignment : int { LEFTALIGN = 0, CENTERALIGN = 1, RIGHTALIGN = 2, INWARDSALIGN = 3, OUTWARDSALIGN = 4 };
  enum PercentStatus : int { ABSOLUTE = 0, PERCENTAGE = 1 };

  void setMiscTextAttr(PbMiscTextAttr* attr);
  PbMiscTextAttr* getMiscTextAttr() const;
  void setFormat(PbNumericDisplayFormat* format);
  PbNumericDisplayFormat* getFormat() const;
  void setSliceToTranslate(int slice, float distance);
  float getSliceToTranslate(int slice) const;
  int getPickedSliceNumber(const SoPath* path, int& slice) const;

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  struct Slice {
    std::string name;
    float value;
    SbColor color;
    TAVREL_STANDIN_ONLY float startAngle;  // radians
    TAVREL_STANDIN_ONLY float sweep;       // radians, 0 for a value that is not positive
    TAVREL_STANDIN_ONLY float translation;
  };
  const SbVec3f& getCenter() const { return center; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }
  TAVREL_STANDIN_ONLY short getNumSlices() const { return numSlices; }
  TAVREL_STANDIN_ONLY const std::vector<Slice>& getSlices() const { return slices; }
  // The filled polygons of the last build, one per slice of positive span,
  // with the number of the slice.
  struct Polygon {
    int slice;
    std::vector<SbVec3f> points;
  };
  TAVREL_STANDIN_ONLY const std::vector<Polygon>& getPolygons() const { return polygons; }

 protected:
  PoPieChart();
  ~PoPieChart() override;
  TAVREL_STANDIN_ONLY void setSlices(const SbVec3f& center, float radius, short numSlices, const char** names, const float* values,
                 int numColors, const SbColor* colors);
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;

 private:
  SbVec3f center;
  float radius = 1.0f;
  short numSlices = 0;
  std::vector<Slice> slices;
  PbMiscTextAttr* textAttr = nullptr;
  PbNumericDisplayFormat* format = nullptr;
  std::vector<Polygon> polygons;
};
