// Axis-aligned boxes. In memory a box is its minimum corner followed by its
// maximum corner: 4 floats for SbBox2f, 6 floats for SbBox3f. A new box is
// empty: its minimum is +max float and its maximum -max float.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>

class SbBox2f {
 public:
  SbBox2f() { makeEmpty(); }
  SbBox2f(float xmin, float ymin, float xmax, float ymax) : minPt(xmin, ymin), maxPt(xmax, ymax) {}
  TAVREL_STANDIN_ONLY void makeEmpty();
  TAVREL_STANDIN_ONLY bool isEmpty() const { return maxPt[0] < minPt[0]; }
  TAVREL_STANDIN_ONLY void extendBy(const SbVec2f& p);
  const SbVec2f& getMin() const { return minPt; }
  const SbVec2f& getMax() const { return maxPt; }

 private:
  SbVec2f minPt;
  SbVec2f maxPt;
};

class SbBox3f {
 public:
  SbBox3f() { makeEmpty(); }
  SbBox3f(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax)
      : minPt(xmin, ymin, zmin), maxPt(xmax, ymax, zmax) {}
  SbBox3f(const SbVec3f& lo, const SbVec3f& hi) : minPt(lo), maxPt(hi) {}
  TAVREL_STANDIN_ONLY void makeEmpty();
  TAVREL_STANDIN_ONLY bool isEmpty() const { return maxPt[0] < minPt[0]; }
  TAVREL_STANDIN_ONLY void extendBy(const SbVec3f& p);
  TAVREL_STANDIN_ONLY void extendBy(const SbBox3f& b);
  TAVREL_STANDIN_ONLY bool intersect(const SbVec3f& p) const;
  const SbVec3f& getMin() const { return minPt; }
  const SbVec3f& getMax() const { return maxPt; }
  SbVec3f getCenter() const { return (minPt + maxPt) * 0.5f; }
  float getVolume() const;

 private:
  SbVec3f minPt;
  SbVec3f maxPt;
};

static_assert(sizeof(SbBox2f) == 4 * sizeof(float), "SbBox2f is four floats");
static_assert(sizeof(SbBox3f) == 6 * sizeof(float), "SbBox3f is six floats");

void journalFormat(std::string& out, const SbBox2f& b);
void journalFormat(std::string& out, const SbBox3f& b);
