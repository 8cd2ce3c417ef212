// A list of isovalues: the values at which contour lines and level surfaces
// are drawn.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A list is regular (num values evenly spaced from min to max) or
//    irregular (the values given). getIsoList reports the count, min, max,
//    the step between values, whether the list is regular, and returns the
//    values. The pointer is never null: an empty list gives a valid pointer
//    to no value. It stays valid until the list changes.
//  - A regular list of num values from min to max: values[i] = min + i *
//    step with step = (max - min) / (num - 1); for num 1 it is {min} and step
//    0; for num 0 it is empty and step 0. A negative num is taken as 0.
//  - The setters:
//      setRegularIsoList(min, max, num)        a regular list;
//      setRegularIsoList(min, max)             new bounds, the same count;
//      setRegularIsoList(num)                  a new count, the same bounds;
//      setRegularIsoList(num, origin, step)    num values from origin, step
//                                              apart (max = origin + (num - 1)
//                                              * step);
//      setRegularIsoList(n, values, num)       num values over the range
//                                              (smallest to largest) of the
//                                              n values given (0 to 0 for
//                                              none);
//      setRegularIsoList(n, values)            the same with the current
//                                              count;
//      setIrregularIsoList(num, values)        those values, in that order;
//                                              min and max are the smallest
//                                              and largest (0 for none), the
//                                              step is 0 and the list is not
//                                              regular.
//  - A new list is regular and empty, from 0 to 0. The constructor (min, max,
//    num) makes a regular list.
//  - Two lists are equal when their values (float by float), bounds, steps
//    and regularity are.
#pragma once

#include <Tavrel/PbBase.h>

#include <vector>

class PbIsovaluesList : public PbBase {
 public:
  PbIsovaluesList();
  PbIsovaluesList(const PbIsovaluesList& other);
  PbIsovaluesList(float min, float max, int num);
  ~PbIsovaluesList() override;

  int operator==(const PbIsovaluesList& other) const;

  void setRegularIsoList(int numValues, const float* values, int num);
  void setRegularIsoList(int numValues, const float* values);
  void setRegularIsoList(int num, float origin, float step);
  void setRegularIsoList(float min, float max, int num);
  void setRegularIsoList(float min, float max);
  void setRegularIsoList(int num);
  void setIrregularIsoList(int num, const float* values);

  const float* getIsoList(int& num, float& min, float& max, float& step, SbBool& isRegular) const;

  // --- Used inside this toolkit (not journaled) ---
  const std::vector<float>& values() const { return isovalues; }

 private:
  void regular(float min, float max, int num);

  std::vector<float> isovalues;
  float minValue = 0.0f;
  float maxValue = 0.0f;
  float stepValue = 0.0f;
  SbBool regularList = 1;
};
