// A data mapping between two values: value1 has colour1 (and transparency1),
// value2 has colour2 (transparency2), and the values between them have the
// colour and transparency interpolated linearly in RGB.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Below the lower of the two values the colour is that of the lower one,
//    above the higher one that of the higher one; with value1 == value2 a
//    value at or above it takes colour2, one below colour1.
//  - The forms without transparencies set both transparencies to 0 (opaque);
//    the HLS forms convert to RGB (see PbDataMapping.h).
//  - A new mapping goes from 0, black, to 1, white, both opaque.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbDataMapping.h>

class PbLinearDataMapping : public PbDataMapping {
 public:
  PbLinearDataMapping();
  PbLinearDataMapping(const PbLinearDataMapping& other);
  ~PbLinearDataMapping() override;

  void setValues(float value1, const SbColor& color1, float value2, const SbColor& color2);
  void setValues(float value1, const SbColor& color1, float transparency1, float value2, const SbColor& color2,
                 float transparency2);
  void setValues(float value1, const float* hls1, float value2, const float* hls2);
  void setValues(float value1, const float* hls1, float transparency1, float value2, const float* hls2,
                 float transparency2);

  void getValues(float& value1, SbColor& color1, float& value2, SbColor& color2) const;
  void getValues(float& value1, SbColor& color1, float& transparency1, float& value2, SbColor& color2,
                 float& transparency2) const;
  void getValues(float& value1, float* hls1, float& value2, float* hls2) const;
  void getValues(float& value1, float* hls1, float& transparency1, float& value2, float* hls2,
                 float& transparency2) const;

 protected:
  TAVREL_STANDIN_ONLY SbColor mappedColor(float value, float& transparency) const override;

 private:
  struct End {
    float value;
    SbColor color;
    float transparency;
  };
  End end1{0.0f, SbColor(0, 0, 0), 0.0f};
  End end2{1.0f, SbColor(1, 1, 1), 0.0f};
};
