// A histogram of one list of values.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, origin, histogSize, type,
//    numValues, values, names): the default constructor with 1, (0, 0), 1,
//    X, 0 and null lists. init copies numValues values and names (a null
//    list or a null name gives empty names); it does not build.
//  - Its build makes one part a value, in order:
//    "bar <start>..<end> height <value> \"<name>\"": the bars share
//    histogSize evenly from the origin's x (type X) or y (type Y).
//  - Drawn as PoHistogram.h says, every bar steel blue (0.27, 0.51, 0.71)
//    without a data mapping.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoHistogram.h>

#include <string>
#include <vector>

class PoSingleHistogram : public PoHistogram {
  PO_GRAPH_KIT_HEADER(PoSingleHistogram)

 public:
  PoSingleHistogram() { init(1, SbVec2f(0, 0), 1.0f, X, 0, nullptr, nullptr); }
  PoSingleHistogram(const SbVec2f& origin, float histogSize, PoHistogram::Type type, int numValues,
                    const float* values, const char** names) {
    init(0, origin, histogSize, type, numValues, values, names);
  }

  void rebuild() override;

 protected:
  ~PoSingleHistogram() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, const SbVec2f& origin, float histogSize, PoHistogram::Type type, int numValues,
            const float* values, const char** names);

 private:
  SbVec2f origin;
  float histogSize = 1.0f;
  Type type = X;
  std::vector<float> values;
  std::vector<std::string> names;
};
