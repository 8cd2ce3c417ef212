// What a graph node's last build draws, kept for the render traversal: lines,
// filled polygons and texts in scene coordinates (see SoGLRenderAction in
// Corvel/SoAction.h). Used inside this toolkit and by its tests; each node
// says in its header what it draws.
//
// Rules shared by the nodes that draw:
//  - The drawing is made by the build and replaced by the next one; a render
//    traversal adds it to the action's picture as it is (a node whose
//    settings changed without a rebuild draws what it last built).
//  - Points are drawn where the node keeps them; a node with a domain maps
//    them through the domain's matrix (getMatrix, PbDomain.h) as the
//    geometric shapes do.
//  - Lines and texts are black unless the node says otherwise.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>
#include <Corvel/SoAction.h>

#include <memory>
#include <string>
#include <vector>

class PbDomain;
class PbNumericDisplayFormat;

class PoDrawing {
 public:
  using Primitive = SoGLRenderAction::Primitive;

  virtual ~PoDrawing() = default;
  // What the last build drew (empty before the first).
  TAVREL_STANDIN_ONLY const std::vector<Primitive>& getDrawing() const { return *drawing; }

 protected:
  // Starts a new drawing; a picture that shows the last one keeps it.
  TAVREL_STANDIN_ONLY void clearDrawing() {
    if (drawing.use_count() == 1) {
      drawing->clear();
    } else {
      drawing = std::make_shared<std::vector<Primitive>>();
    }
  }
  TAVREL_STANDIN_ONLY void addLine(std::vector<SbVec3f> points, const SbColor& color = SbColor(0, 0, 0));
  TAVREL_STANDIN_ONLY void addPolygon(std::vector<SbVec3f> points, const SbColor& color);
  TAVREL_STANDIN_ONLY void addText(const SbVec3f& at, std::string text, Primitive::Anchor anchor = Primitive::MIDDLE,
               Primitive::Baseline baseline = Primitive::BASELINE, const SbColor& color = SbColor(0, 0, 0));
  // A legend row from corner low to corner high: a square in the colour
  // (outlined in black for null), then the text (PoItemLegend.h).
  TAVREL_STANDIN_ONLY void addLegendRow(const SbVec2f& low, const SbVec2f& high, const SbColor* color, const std::string& text);
  // A quarter of the smallest gap between two of the x values, or of the
  // fallback when no two differ.
  TAVREL_STANDIN_ONLY static float quarterGap(std::vector<float> xs, float fallback);
  // The outline of the box from corner a to corner c, closed, at z 0.
  static std::vector<SbVec3f> box(const SbVec2f& a, const SbVec2f& c);
  // A value written with the format, without the padding on its left
  // (null: "%g").
  TAVREL_STANDIN_ONLY static std::string valueText(float value, const PbNumericDisplayFormat* format);
  // Maps every point drawn so far through the domain's matrix (null: none).
  TAVREL_STANDIN_ONLY void mapThroughDomain(const PbDomain* domain);

 private:
  friend class PoBase;
  // Adds the drawing to the action's picture, which shares it (PoBase::draw).
  void drawInto(SoGLRenderAction* action) const;

  // What is being drawn, made alone: only renders share it (drawInto), and a
  // shared drawing is never changed again.
  std::vector<Primitive>& own();

  std::shared_ptr<std::vector<Primitive>> drawing = std::make_shared<std::vector<Primitive>>();
};
