// A property node that gives the representations after it their isovalues
// (a PbIsovaluesList of its own, see there for the lists each setter makes
// and what getIsoList reports).
//
// The node has no fields: the setters change its list, getIsoList reads it
// (the values stay valid until the list next changes). A new node's list is
// regular and empty, from 0 to 0. When traversed the node becomes the
// state's current isovalues list (PoIsovaluesListElement, with its list).
// The three setters journal under the overload they are, for example
// "PoIsovaluesList::setRegularIsoList(int, float, float)(5, 0, 0.5)".
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PoPropertyNode.h>

class PoIsovaluesList : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoIsovaluesList)

 public:
  void setRegularIsoList(int numValues, const float* values, int num);
  void setRegularIsoList(int num, float origin, float step);
  void setRegularIsoList(float min, float max, int num);
  const float* getIsoList(int& num, float& min, float& max, float& step, SbBool& isRegular) const;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const PbIsovaluesList* getList() const { return &list; }

 private:
  PbIsovaluesList list;
};
