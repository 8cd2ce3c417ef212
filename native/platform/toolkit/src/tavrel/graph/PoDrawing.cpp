// What graph nodes draw, kept between their build and the render traversal.

#include <Tavrel/PbDomain.h>
#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoDrawing.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

std::vector<SoGLRenderAction::Primitive>& PoDrawing::own() {
  // A picture still shows this drawing: what follows goes into a copy.
  if (drawing.use_count() > 1) drawing = std::make_shared<std::vector<Primitive>>(*drawing);
  return *drawing;
}

void PoDrawing::addLine(std::vector<SbVec3f> points, const SbColor& color) {
  own().push_back(Primitive{Primitive::LINE, std::move(points), color, {}});
}

void PoDrawing::addPolygon(std::vector<SbVec3f> points, const SbColor& color) {
  own().push_back(Primitive{Primitive::POLYGON, std::move(points), color, {}});
}

void PoDrawing::addText(const SbVec3f& at, std::string text, Primitive::Anchor anchor, Primitive::Baseline baseline,
                        const SbColor& color) {
  own().push_back(Primitive{Primitive::TEXT, {at}, color, std::move(text), anchor, baseline});
}

std::vector<SbVec3f> PoDrawing::box(const SbVec2f& a, const SbVec2f& c) {
  return {SbVec3f(a[0], a[1], 0), SbVec3f(c[0], a[1], 0), SbVec3f(c[0], c[1], 0), SbVec3f(a[0], c[1], 0),
          SbVec3f(a[0], a[1], 0)};
}

void PoDrawing::addLegendRow(const SbVec2f& low, const SbVec2f& high, const SbColor* color, const std::string& text) {
  const float h = high[1] - low[1];
  const float middle = (low[1] + high[1]) / 2;
  const SbVec2f a(low[0] + 0.2f * h, middle - 0.3f * h), c(low[0] + 0.8f * h, middle + 0.3f * h);
  if (color != nullptr) {
    std::vector<SbVec3f> square = box(a, c);
    square.pop_back();
    addPolygon(std::move(square), *color);
  } else {
    addLine(box(a, c));
  }
  addText(SbVec3f(low[0] + h, middle, 0), text, Primitive::START, Primitive::CENTRAL);
}

float PoDrawing::quarterGap(std::vector<float> xs, float fallback) {
  std::sort(xs.begin(), xs.end());
  float gap = 0.0f;
  for (std::size_t i = 1; i < xs.size(); ++i)
    if (xs[i] > xs[i - 1] && (gap == 0.0f || xs[i] - xs[i - 1] < gap)) gap = xs[i] - xs[i - 1];
  return (gap > 0.0f ? gap : std::fabs(fallback)) / 4;
}

std::string PoDrawing::valueText(float value, const PbNumericDisplayFormat* format) {
  if (format == nullptr) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value == 0.0f ? 0.0 : static_cast<double>(value));
    return text;
  }
  const std::string text = format->format(value).getString();
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

void PoDrawing::mapThroughDomain(const PbDomain* domain) {
  if (domain == nullptr) return;
  for (Primitive& p : own())
    for (SbVec3f& v : p.points) domain->matrix().multVecMatrix(v, v);
}

void PoDrawing::drawInto(SoGLRenderAction* action) const {
  action->addDrawing(drawing);
}
