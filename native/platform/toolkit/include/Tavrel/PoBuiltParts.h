// What a curve, histogram or legend node made at its last build, as lines of
// text, one a part ("polyline (0, 1) (2, 3)", "bar 0..1 height 3 \"a\"").
// Used inside this toolkit and by its tests; the nodes list their parts in
// their headers. The same build also makes what the node draws (PoDrawing.h).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoDrawing.h>

#include <string>
#include <vector>

class PoBuiltParts : public PoDrawing {
 public:
  // The parts of the last build (empty before the first).
  TAVREL_STANDIN_ONLY const std::vector<std::string>& getBuiltParts() const { return builtParts; }

 protected:
  TAVREL_STANDIN_ONLY std::vector<std::string> builtParts;
};
