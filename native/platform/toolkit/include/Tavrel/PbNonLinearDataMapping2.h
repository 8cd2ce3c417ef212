// A data mapping given by a list of values and a list of colours (with an
// optional list of transparencies).
//
// Behaviour of this toolkit (what a caller may rely on):
//  - setValues(type, num, values, colors[, transparency]) copies num values
//    (expected in increasing order; not checked) and the colours and
//    transparencies the type needs:
//      NONLINEARPERLEVEL  num + 1 colours: colour 0 below values[0], colour i
//                         from values[i-1] up to values[i], colour num from
//                         values[num-1] up (a value equal to values[i] takes
//                         colour i + 1);
//      LINEARPERLEVEL     num colours: colour i at values[i], interpolated in
//                         RGB between neighbouring values, the end colours
//                         outside them.
//    Any other type value is taken as NONLINEARPERLEVEL. A negative num is
//    taken as 0.
//  - The colour count (the number above) is shared by the colour list and the
//    transparency list. A list that was not given (a null pointer) or that
//    has no element is not kept: its pointer is null. Without colours every
//    value is black; without transparencies it is opaque.
//  - Each setValues replaces the lists (the earlier ones are freed).
//  - A new mapping is NONLINEARPERLEVEL without values and with a colour
//    count of 1, and has no list at all.
//  - The type, the lists and their counts are read directly (inline
//    accessors).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbDataMapping.h>

#include <vector>

class PbNonLinearDataMapping2 : public PbDataMapping {
 public:
  enum Type : int { NONLINEARPERLEVEL = 0, LINEARPERLEVEL = 1 };

  PbNonLinearDataMapping2();
  PbNonLinearDataMapping2(const PbNonLinearDataMapping2& other);
  ~PbNonLinearDataMapping2() override;

  void setValues(Type type, int num, const float* values, const SbColor* colors);
  void setValues(Type type, int num, const float* values, const SbColor* colors, const float* transparency);

  TAVREL_ASSUMED Type getType() const { return type; }
  TAVREL_ASSUMED int getNumValues() const { return static_cast<int>(values.size()); }
  TAVREL_ASSUMED const float* getValuesList() const { return values.empty() ? nullptr : values.data(); }
  TAVREL_ASSUMED int getNumColors() const { return numColors; }
  TAVREL_ASSUMED const SbColor* getColorsList() const { return colors.empty() ? nullptr : colors.data(); }
  TAVREL_ASSUMED const float* getTransparencyList() const { return transparencies.empty() ? nullptr : transparencies.data(); }

 protected:
  TAVREL_STANDIN_ONLY SbColor mappedColor(float value, float& transparency) const override;

 private:
  void set(Type type, int num, const float* values, const SbColor* colors, const float* transparency);

  Type type = NONLINEARPERLEVEL;
  std::vector<float> values;
  int numColors = 1;
  std::vector<SbColor> colors;
  std::vector<float> transparencies;
};
