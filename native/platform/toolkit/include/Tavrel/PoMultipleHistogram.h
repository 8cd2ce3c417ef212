// Several histograms over the same list of value names.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, origin, histogSize, type,
//    numHistog, numValues, values, histogNames, valueNames): the default
//    constructor with 1, (0, 0), 1, X, 0, 0 and null lists. init copies
//    numHistog x numValues values (histogram after histogram),
//    numHistog histogram names and numValues value names (null gives empty
//    names); it does not build.
//  - Its build makes one part a value, histogram after histogram:
//    "bar <start>..<end> height <value> \"<histogName>/<valueName>\"", the
//    bars sharing histogSize evenly as for PoSingleHistogram.
//  - Drawn as PoHistogram.h says; without a data mapping the bars of
//    histogram h take colour h modulo 4 of steel blue (0.27, 0.51, 0.71),
//    orange (0.93, 0.55, 0.2), green (0.35, 0.7, 0.35) and red
//    (0.84, 0.3, 0.3).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoHistogram.h>

#include <string>
#include <vector>

class PoMultipleHistogram : public PoHistogram {
  PO_GRAPH_KIT_HEADER(PoMultipleHistogram)

 public:
  enum HistogPath : int { ROWCOLUMN = 0, COLUMNROW = 1 };
  enum Representation : int { JUXTAPOSED = 0, ACCUMULATED = 1, PERCENTAGE = 2 };

  PoMultipleHistogram() { init(1, SbVec2f(0, 0), 1.0f, X, 0, 0, nullptr, nullptr, nullptr); }
  PoMultipleHistogram(const SbVec2f& origin, float histogSize, PoHistogram::Type type, int numHistog,
                      int numValues, const float* values, const char** histogNames, const char** valueNames) {
    init(0, origin, histogSize, type, numHistog, numValues, values, histogNames, valueNames);
  }

  void rebuild() override;

 protected:
  ~PoMultipleHistogram() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, const SbVec2f& origin, float histogSize, PoHistogram::Type type, int numHistog,
            int numValues, const float* values, const char** histogNames, const char** valueNames);

 private:
  SbVec2f origin;
  float histogSize = 1.0f;
  Type type = X;
  int numValues = 0;
  std::vector<float> values;
  std::vector<std::string> histogNames;
  std::vector<std::string> valueNames;
};
