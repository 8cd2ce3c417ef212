// Base of the data mappings: objects that give each value a colour (and a
// transparency), used to colour meshes, curves and legends by value.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - HLS colours are three floats: hue in degrees [0, 360), lightness and
//    saturation in [0, 1] (the double-hexcone model). A grey has hue 0. HLS
//    colours given to a mapping are turned into RGB at once and kept as RGB,
//    so an HLS colour read back may differ from the one given in the last
//    bits.
//  - Thresholds: with the minimum threshold enabled, a value below it takes
//    the minimum threshold's colour; with the maximum enabled, a value above
//    it takes the maximum's. setMin/MaxThreshold(value) changes the value
//    only; the forms with a colour set the value, the colour and the
//    transparency. Both thresholds start disabled, at 0, black, opaque.
//  - getHLSColor(value) gives the colour of the value after the thresholds,
//    as HLS, in a buffer of the mapping that the next call overwrites.
//  - The transparency flag (off at first) and the transparency of the
//    deleted parts (0 at first) are kept and reported; this toolkit draws
//    nothing with them.
//  - The threshold flags and the transparency flag are read directly (inline
//    accessors).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Tavrel/PbBase.h>

class PbDataMapping : public PbBase {
 public:
  ~PbDataMapping() override;

  const float* getHLSColor(float value) const;

  void setMinThreshold(float threshold);
  void setMaxThreshold(float threshold);
  void setMinThreshold(float threshold, const SbColor& color, float transparency);
  void setMinThreshold(float threshold, float* hls, float transparency);
  void setMaxThreshold(float threshold, const SbColor& color, float transparency);
  void setMaxThreshold(float threshold, float* hls, float transparency);

  void enableThresholds(SbBool min, SbBool max);
  TAVREL_ASSUMED void thresholdsEnabled(SbBool& min, SbBool& max) const {
    min = minThreshold.enabled;
    max = maxThreshold.enabled;
  }

  void enableTransparency(SbBool flag);
  TAVREL_ASSUMED SbBool isTransparencyEnabled() const { return transparencyEnabled; }

  void setTransparencyValueDeletedParts(float value);
  float getTransparencyValueDeletedParts() const;

  // --- Used inside this toolkit (not journaled) ---
  // The colour and transparency of a value, thresholds included.
  TAVREL_STANDIN_ONLY SbColor colorOf(float value, float* transparency = nullptr) const;
  TAVREL_STANDIN_ONLY static SbColor hlsToRgb(const float* hls);
  TAVREL_STANDIN_ONLY static void rgbToHls(const SbColor& rgb, float* hls);

 protected:
  PbDataMapping() = default;
  PbDataMapping(const PbDataMapping& other) = default;

  // The mapping's own colour and transparency of a value (no thresholds).
  TAVREL_STANDIN_ONLY virtual SbColor mappedColor(float value, float& transparency) const = 0;

 private:
  struct Threshold {
    float value = 0.0f;
    SbColor color;
    float transparency = 0.0f;
    TAVREL_STANDIN_ONLY SbBool enabled = 0;
  };

  Threshold minThreshold;
  Threshold maxThreshold;
  SbBool transparencyEnabled = 0;
  float deletedPartsTransparency = 0.0f;
  mutable float hlsResult[3] = {0.0f, 0.0f, 0.0f};
};
