// What the attribute property nodes share (PoBevelEdge, the data mappings,
// PoDateFormatMapping, PoDomain, PoIsovaluesList, PoLabelHints, the 1D-mesh
// filters, PoMesh1DHints, PoMiscTextAttr, PoNumericDisplayFormat and the
// profiles).
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A property node keeps its values in named fields of its own, which
//    SoNode::getField finds (SoFieldContainer::addOwnField); each field is a
//    text value, read every time the node's values are used, so a change of
//    a field shows at once:
//      numbers      decimal text, "0.25" or "3" (C locale)
//      flags        "TRUE" / "FALSE" (or "1" / "0")
//      enumerations the enumerator's value, "2"
//      vectors      "x y z" (or "x y"); colours "r g b", each in [0, 1]
//      lists        numbers separated by spaces, "0 0.5 1"; a list of
//                   colours or points is its numbers one after the other
//    A field whose text cannot be read (or an empty list where a value is
//    needed) counts as its default, given in the node's header. Text after
//    what a field needs is ignored.
//  - When an action traverses the node (doAction, or any action operation of
//    PoNode) it makes itself the current node of its kind in the action's
//    state (makeCurrent; nothing outside apply, where an action has no state)
//    and traverses its children.
//  - A node that stands for an attribute object of the graphs (PoDomain and
//    PbDomain, PoIsovaluesList and PbIsovaluesList, ...) keeps one of its
//    own, brought up to date from its fields whenever it is asked for; the
//    toolkit's calls inside the node are not journaled, only the node's own
//    entry points are.
//  - Constructors record "<Class>::<Class>" and doAction
//    "<Class>::doAction(action)".
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoNode.h>

#include <vector>

class SoAction;
class SoField;

// --- Used inside this toolkit (not journaled) ---
// A node that sets something in the traversal state when an action goes
// through it (PoNode's action operations call makeCurrent).
class PoStateSetter {
 public:
  TAVREL_STANDIN_ONLY virtual void makeCurrent(SoAction* action) const = 0;

 protected:
  ~PoStateSetter() = default;
};

// Reading field texts (the rules above). Each returns the default when the
// text cannot be read.
namespace po_fields {
float readFloat(const SoField* field, float defaultValue);
int readInt(const SoField* field, int defaultValue);
bool readFlag(const SoField* field, bool defaultValue);
SbVec3f readVec3(const SoField* field, const SbVec3f& defaultValue);
SbColor readColor(const SoField* field, const SbColor& defaultValue);
// Every number of the text, in order (stops at the first that cannot be read).
std::vector<float> readFloats(const SoField* field);
SbString readText(const SoField* field);
}  // namespace po_fields

// The members every attribute property node declares.
#define PO_PROPERTY_NODE_HEADER(className)          \
  SO_NODE_HEADER(className)                         \
                                                    \
 public:                                            \
  className();                                      \
  void doAction(SoAction* action) override;         \
  void makeCurrent(SoAction* action) const override; \
                                                    \
 protected:                                         \
  ~className() override;                            \
                                                    \
 public:
