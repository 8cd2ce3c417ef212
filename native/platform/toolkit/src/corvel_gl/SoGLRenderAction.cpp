#include <Corvel/SoAction.h>
#include <Corvel/SoNode.h>

#include <algorithm>
#include <cstdio>

SO_ACTION_SOURCE(SoGLRenderAction, SoAction, "GLRenderAction", GLRender)

namespace {
void number(std::string& out, double v) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.4g", v);
  out += buf;
}

std::string escaped(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '&': out += "&amp;"; break;
      case '"': out += "&quot;"; break;
      default: out += c;
    }
  }
  return out;
}
}  // namespace

namespace {
// Text size as a share of the width plus height of the points' box.
const double kTextSize = 9.0 / 800;

std::size_t characters(const std::string& text) {
  std::size_t n = 0;
  for (unsigned char c : text) n += (c & 0xC0) != 0x80;  // UTF-8 lead bytes
  return n;
}

std::string colour(const SbColor& c) {
  char text[16];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<int>(c[0] * 255 + 0.5f) & 255,
                static_cast<int>(c[1] * 255 + 0.5f) & 255, static_cast<int>(c[2] * 255 + 0.5f) & 255);
  return text;
}

struct Box {
  double minX = 0, minY = 0, maxX = 1, maxY = 1;
  bool empty = true;
  void add(double x, double y) {
    if (empty) minX = maxX = x, minY = maxY = y, empty = false;
    minX = std::min(minX, x), maxX = std::max(maxX, x);
    minY = std::min(minY, y), maxY = std::max(maxY, y);
  }
};

// The corners of a text of the given size about its point (y up).
void addText(Box& box, const SoGLRenderAction::Primitive& p, double size) {
  using P = SoGLRenderAction::Primitive;
  const double width = 0.6 * size * static_cast<double>(characters(p.text));
  const double x = p.points[0][0], y = p.points[0][1];
  const double left = p.anchor == P::START ? x : p.anchor == P::END ? x - width : x - width / 2;
  // The baseline, then the top of the text, 0.8 of a line above it.
  const double base = p.baseline == P::HANGING ? y - 0.8 * size : p.baseline == P::CENTRAL ? y - 0.35 * size : y;
  box.add(left, base - 0.2 * size);
  box.add(left + width, base + 0.8 * size);
}
}  // namespace

std::string SoGLRenderAction::toSvg() const {
  Box points;
  forEachPrimitive([&points](const Primitive& p) {
    for (const SbVec3f& v : p.points) points.add(v[0], v[1]);
  });
  const double size = (points.maxX - points.minX + points.maxY - points.minY) * kTextSize;
  const double stroke = size / 9;
  Box all = points;
  forEachPrimitive([&all, size](const Primitive& p) {
    if (p.kind == Primitive::TEXT && !p.points.empty()) addText(all, p, size);
  });
  const double minX = all.minX, minY = all.minY, maxX = all.maxX, maxY = all.maxY;
  const double margin = 0.05 * std::max(maxX - minX, maxY - minY) + 1e-3;
  std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"";
  number(out, minX - margin), out += ' ', number(out, -maxY - margin), out += ' ';
  number(out, maxX - minX + 2 * margin), out += ' ', number(out, maxY - minY + 2 * margin);
  out += "\" width=\"800\" height=\"600\">\n";
  forEachPrimitive([&out, size, stroke](const Primitive& p) {
    std::string coordinates;
    for (const SbVec3f& v : p.points) {
      if (!coordinates.empty()) coordinates += ' ';
      number(coordinates, v[0]), coordinates += ',', number(coordinates, -v[1]);
    }
    if (p.kind == Primitive::TEXT) {
      if (p.points.empty()) return;
      out += "<text x=\"", number(out, p.points[0][0]), out += "\" y=\"", number(out, -p.points[0][1]);
      out += "\" font-size=\"", number(out, size);
      out += "\" text-anchor=\"";
      out += p.anchor == Primitive::START ? "start" : p.anchor == Primitive::END ? "end" : "middle";
      if (p.baseline == Primitive::CENTRAL) out += "\" dy=\"0.35em";
      if (p.baseline == Primitive::HANGING) out += "\" dy=\"0.8em";
      if (p.color != SbColor(0, 0, 0)) out += "\" fill=\"" + colour(p.color);
      out += "\">" + escaped(p.text) + "</text>\n";
    } else if (p.kind == Primitive::POLYGON) {
      out += "<polygon points=\"" + coordinates + "\" fill=\"" + colour(p.color);
      out += "\" stroke=\"white\" stroke-width=\"";
      number(out, stroke), out += "\"/>\n";
    } else {
      out += "<polyline points=\"" + coordinates + "\" fill=\"none\" stroke=\"";
      out += p.color == SbColor(0, 0, 0) ? std::string("black") : colour(p.color);
      out += "\" stroke-width=\"";
      number(out, stroke), out += "\"/>\n";
    }
  });
  out += "</svg>\n";
  return out;
}
