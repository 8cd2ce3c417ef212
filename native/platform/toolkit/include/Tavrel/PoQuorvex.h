// Base of the point-set, curve, label and shape graph nodes. Abstract; it
// adds nothing to PoBase but its type and catalog.
#pragma once

#include <Tavrel/PoBase.h>

class PoQuorvex : public PoBase {
  PO_GRAPH_KIT_HEADER(PoQuorvex)

 protected:
  PoQuorvex();
  ~PoQuorvex() override;
};
