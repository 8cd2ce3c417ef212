// A 4 x 4 float matrix: 16 floats, row after row (m[0][0], m[0][1], ...).
// Points are row vectors multiplied on the left, p' = p * M, so a translation
// stands in the last row (m[3][0..2]). A new matrix is the identity.
// Everything here is inline: users compile it themselves.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>

class SbMatrix {
 public:
  SbMatrix() { makeIdentity(); }

  TAVREL_STANDIN_ONLY void makeIdentity() {
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j) m[i][j] = i == j ? 1.0f : 0.0f;
  }

  float* operator[](int i) { return m[i]; }
  const float* operator[](int i) const { return m[i]; }

  // p' = p * M for the point (x, y, z, 1), divided by its fourth component
  // when that is neither 0 nor 1.
  TAVREL_STANDIN_ONLY void multVecMatrix(const SbVec3f& src, SbVec3f& dst) const {
    float out[4];
    for (int j = 0; j < 4; ++j) out[j] = src[0] * m[0][j] + src[1] * m[1][j] + src[2] * m[2][j] + m[3][j];
    if (out[3] != 0.0f && out[3] != 1.0f) {
      for (int j = 0; j < 3; ++j) out[j] /= out[3];
    }
    dst.setValue(out[0], out[1], out[2]);
  }

  bool operator==(const SbMatrix& o) const {
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j)
        if (m[i][j] != o.m[i][j]) return false;
    return true;
  }
  bool operator!=(const SbMatrix& o) const { return !(*this == o); }

 private:
  float m[4][4];
};

static_assert(sizeof(SbMatrix) == 16 * sizeof(float), "SbMatrix is sixteen floats");
