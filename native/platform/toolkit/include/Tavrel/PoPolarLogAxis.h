// A logarithmic polar axis.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - PoPolarLogAxis(x0, y0, x1, y1, decadeListDef, decades, count): the
//    axis of PoPolarAxis.h whose exponents are the distances from the
//    centre (0 to the length: a length of 3 covers 1 to 1,000), graduated
//    and labelled as a logarithmic axis with that decade list (PoLogAxis.h).
//    getLogGrad as PoLogAxis's. The default constructor makes the axis
//    from (0, 0) to (1, 0) with the automatic decade list. Eight sub-ticks.
//  - Drawn as a polar axis (PoPolarAxis.h) whose values lie at the fraction
//    of their logarithm (a value 10^d at the distance d).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoLogAxis.h>
#include <Tavrel/PoPolarAxis.h>

#include <vector>

class PoPolarLogAxis : public PoPolarAxis {
  PO_GRAPH_KIT_HEADER(PoPolarLogAxis)

 public:
  enum DecadeListDef : int { DECADELISTAUTO = 0, DECADELISTNONAUTO = 1 };
  enum TenPowGradRep : int { TENPOWERPOW10 = 0, TENPOWERDECIMAL = 1, TENPOWERAUTO = 2 };
  enum DecadeRep : int { DECADENONE = 0, DECADEASTENPOWER = 1, DECADEDECIMAL = 2, DECADEDIGIT = 3, DECADEAUTO = 4 };

  PoPolarLogAxis();
  PoPolarLogAxis(float x0, float y0, float x1, float y1, DecadeListDef def, const unsigned short* decades,
                 short count);

  void getLogGrad(short& count, unsigned short* decades, TenPowGradRep& tenPowerRep, DecadeRep& decadeRep,
                  SbString& fontName, float& span) const;

 protected:
  ~PoPolarLogAxis() override;
  TAVREL_STANDIN_ONLY void makeGraduations(std::vector<Graduation>& out) const override;
  TAVREL_STANDIN_ONLY void range(double& startValue, double& endValue) const override;
  TAVREL_STANDIN_ONLY unsigned short subTicks() const override { return 8; }
  TAVREL_STANDIN_ONLY bool logarithmic() const override { return true; }

 private:
  DecadeListDef decadeListDef = DECADELISTAUTO;
  std::vector<unsigned short> decadeList;
};
