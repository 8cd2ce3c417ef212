// A logarithmic axis.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - init(flag, start, end, type, decadeListDef, decades, count, expStart,
//    expEnd): the exponents run from expStart at the start of the axis to
//    expEnd at its end; when both are equal they are the coordinates along
//    the axis (PoCartesianAxis.h): an axis from 0 to 4 covers 1 to 10,000.
//    The leading flag is 1 for the default constructor (from (0, 0, 0) to 1
//    along x, type XY, automatic decade list), 0 otherwise.
//  - The decade list: the digits d of each decade that get a graduation at
//    d x 10^k. DECADELISTAUTO uses {1} (one graduation a ten power);
//    DECADELISTNONAUTO uses the count values of the list that are digits 1
//    to 9, in value order ({1} when there is none). The list is kept as
//    given (count values, none for a count below 1) and getLogGrad gives
//    it back ({1} and a count of 1 with DECADELISTAUTO).
//  - Graduations: every d x 10^k whose exponent lies between the two end
//    exponents (within a millionth), in the order the axis runs. Labels:
//    decimals ("1", "20", "0.05") for exponents -3 to 4, otherwise "10^k"
//    for a ten power and "dx10^k" for the other digits.
//  - getLogGrad(count, decades, tenPowerRep, decadeRep, fontName, span):
//    the list as above, TENPOWERAUTO, DECADEAUTO, the font name of the text
//    attributes ("" without) and the number of decades covered.
//  - getMultFactor: MULTFACTOREND and 1. Eight sub-ticks.
//  - Drawn as a cartesian axis (PoCartesianAxis.h) whose values lie at the
//    fraction of their logarithm.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoCartesianAxis.h>

#include <vector>

class PoLogAxis : public PoCartesianAxis {
  PO_GRAPH_KIT_HEADER(PoLogAxis)

 public:
  enum DecadeListDef : int { DECADELISTAUTO = 0, DECADELISTNONAUTO = 1 };
  enum TenPowGradRep : int { TENPOWERPOW10 = 0, TENPOWERDECIMAL = 1, TENPOWERAUTO = 2 };
  enum DecadeRep : int { DECADENONE = 0, DECADEASTENPOWER = 1, DECADEDECIMAL = 2, DECADEDIGIT = 3, DECADEAUTO = 4 };
  enum MultFactorPosition : int { MULTFACTORSTART = 0, MULTFACTOREND = 1, MULTFACTOREXTR = 2, MULTFACTORGRAD = 3 };

  PoLogAxis();
  PoLogAxis(const SbVec3f& start, float end, Type type, DecadeListDef def, const unsigned short* decades,
            short count, float expStart, float expEnd) {
    init(0, start, end, type, def, decades, count, expStart, expEnd);
  }

  void getMultFactor(MultFactorPosition& position, float& factor) const;
  void getLogGrad(short& count, unsigned short* decades, TenPowGradRep& tenPowerRep, DecadeRep& decadeRep,
                  SbString& fontName, float& span) const;

 protected:
  ~PoLogAxis() override;
  void init(int flag, const SbVec3f& start, float end, Type type, DecadeListDef def, const unsigned short* decades,
            short count, float expStart, float expEnd);
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 8; }
  TAVREL_STANDIN_ONLY bool logarithmic() const override { return true; }

 private:
  DecadeListDef decadeListDef = DECADELISTAUTO;
  std::vector<unsigned short> decadeList;
  float expStart = 0.0f;
  float expEnd = 0.0f;
};
