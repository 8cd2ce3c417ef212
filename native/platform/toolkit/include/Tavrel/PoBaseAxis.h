// Base of the axis groups. Abstract; it adds nothing to PoBase but its type
// and catalog.
#pragma once

#include <Tavrel/PoBase.h>

class PoBaseAxis : public PoBase {
  PO_GRAPH_KIT_HEADER(PoBaseAxis)

 protected:
  PoBaseAxis();
  ~PoBaseAxis() override;
};
