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

std::string SoGLRenderAction::toSvg() const {
  double minX = 0, minY = 0, maxX = 1, maxY = 1;
  bool first = true;
  for (const Primitive& p : primitives) {
    for (const SbVec3f& v : p.points) {
      if (first) minX = maxX = v[0], minY = maxY = v[1], first = false;
      minX = std::min<double>(minX, v[0]), maxX = std::max<double>(maxX, v[0]);
      minY = std::min<double>(minY, v[1]), maxY = std::max<double>(maxY, v[1]);
    }
  }
  const double margin = 0.05 * std::max(maxX - minX, maxY - minY) + 1e-3;
  std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"";
  number(out, minX - margin), out += ' ', number(out, -maxY - margin), out += ' ';
  number(out, maxX - minX + 2 * margin), out += ' ', number(out, maxY - minY + 2 * margin);
  out += "\" width=\"800\" height=\"600\">\n";
  const double stroke = (maxX - minX + maxY - minY) / 800;
  for (const Primitive& p : primitives) {
    std::string points;
    for (const SbVec3f& v : p.points) {
      if (!points.empty()) points += ' ';
      number(points, v[0]), points += ',', number(points, -v[1]);
    }
    if (p.kind == Primitive::TEXT) {
      if (p.points.empty()) continue;
      out += "<text x=\"", number(out, p.points[0][0]), out += "\" y=\"", number(out, -p.points[0][1]);
      out += "\" font-size=\"", number(out, 12 * stroke);
      out += "\" text-anchor=\"middle\">" + escaped(p.text) + "</text>\n";
    } else if (p.kind == Primitive::POLYGON) {
      char fill[16];
      std::snprintf(fill, sizeof fill, "#%02x%02x%02x", static_cast<int>(p.color[0] * 255 + 0.5f) & 255,
                    static_cast<int>(p.color[1] * 255 + 0.5f) & 255, static_cast<int>(p.color[2] * 255 + 0.5f) & 255);
      out += "<polygon points=\"" + points + "\" fill=\"" + fill + "\" stroke=\"white\" stroke-width=\"";
      number(out, stroke), out += "\"/>\n";
    } else {
      out += "<polyline points=\"" + points + "\" fill=\"none\" stroke=\"black\" stroke-width=\"";
      number(out, stroke), out += "\"/>\n";
    }
  }
  out += "</svg>\n";
  return out;
}
