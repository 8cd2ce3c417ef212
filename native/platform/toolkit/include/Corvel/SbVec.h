// Two- and three-component float vectors. An array of n vectors is an array of
// 2n or 3n contiguous floats.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>
#include <string>

class SbVec2f {
 public:
  SbVec2f() : vec{0.0f, 0.0f} {}
  SbVec2f(float x, float y) : vec{x, y} {}
  explicit SbVec2f(const float v[2]) : vec{v[0], v[1]} {}

  const float* getValue() const { return vec; }
  void getValue(float& x, float& y) const { x = vec[0]; y = vec[1]; }
  SbVec2f& setValue(float x, float y) { vec[0] = x; vec[1] = y; return *this; }
  float& operator[](int i) { return vec[i]; }
  const float& operator[](int i) const { return vec[i]; }
  TAVREL_STANDIN_ONLY float dot(const SbVec2f& v) const { return vec[0] * v[0] + vec[1] * v[1]; }
  float length() const;

  friend SbVec2f operator+(const SbVec2f& a, const SbVec2f& b) { return SbVec2f(a[0] + b[0], a[1] + b[1]); }
  friend SbVec2f operator-(const SbVec2f& a, const SbVec2f& b) { return SbVec2f(a[0] - b[0], a[1] - b[1]); }
  friend SbVec2f operator*(const SbVec2f& a, float s) { return SbVec2f(a[0] * s, a[1] * s); }
  friend bool operator==(const SbVec2f& a, const SbVec2f& b) { return a[0] == b[0] && a[1] == b[1]; }
  friend bool operator!=(const SbVec2f& a, const SbVec2f& b) { return !(a == b); }

 protected:
  TAVREL_STANDIN_ONLY float vec[2];
};

class SbVec3f {
 public:
  SbVec3f() : vec{0.0f, 0.0f, 0.0f} {}
  SbVec3f(float x, float y, float z) : vec{x, y, z} {}
  explicit SbVec3f(const float v[3]) : vec{v[0], v[1], v[2]} {}

  const float* getValue() const { return vec; }
  void getValue(float& x, float& y, float& z) const { x = vec[0]; y = vec[1]; z = vec[2]; }
  SbVec3f& setValue(float x, float y, float z) { vec[0] = x; vec[1] = y; vec[2] = z; return *this; }
  float& operator[](int i) { return vec[i]; }
  const float& operator[](int i) const { return vec[i]; }
  TAVREL_STANDIN_ONLY float dot(const SbVec3f& v) const { return vec[0] * v[0] + vec[1] * v[1] + vec[2] * v[2]; }
  TAVREL_STANDIN_ONLY SbVec3f cross(const SbVec3f& v) const {
    return SbVec3f(vec[1] * v[2] - vec[2] * v[1], vec[2] * v[0] - vec[0] * v[2], vec[0] * v[1] - vec[1] * v[0]);
  }
  float length() const;

  friend SbVec3f operator+(const SbVec3f& a, const SbVec3f& b) { return SbVec3f(a[0] + b[0], a[1] + b[1], a[2] + b[2]); }
  friend SbVec3f operator-(const SbVec3f& a, const SbVec3f& b) { return SbVec3f(a[0] - b[0], a[1] - b[1], a[2] - b[2]); }
  friend SbVec3f operator*(const SbVec3f& a, float s) { return SbVec3f(a[0] * s, a[1] * s, a[2] * s); }
  friend bool operator==(const SbVec3f& a, const SbVec3f& b) { return a[0] == b[0] && a[1] == b[1] && a[2] == b[2]; }
  friend bool operator!=(const SbVec3f& a, const SbVec3f& b) { return !(a == b); }

 protected:
  TAVREL_STANDIN_ONLY float vec[3];
};

static_assert(sizeof(SbVec2f) == 2 * sizeof(float), "SbVec2f is two floats");
static_assert(sizeof(SbVec3f) == 3 * sizeof(float), "SbVec3f is three floats");

void journalFormat(std::string& out, const SbVec2f& v);
void journalFormat(std::string& out, const SbVec3f& v);
