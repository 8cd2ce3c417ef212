// Base of the graph attribute objects: domains, data mappings, isovalue
// lists, text attributes, numeric and date formats. They are plain objects,
// not nodes; graph nodes and representations keep them by address.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Nothing in this toolkit deletes an attribute object, and no node takes
//    ownership of one: whoever made it decides. Nodes keep the address they
//    were given for as long as it is set.
//  - The connection flag (on by default) says whether the nodes that use the
//    object follow its changes: a node whose connected attribute object has
//    changed since the node was last built counts as modified when a
//    traversal next reaches it (see PoBase.h). With the flag off, the node
//    only sees the object's state at its next rebuild for another reason.
//    The flag is read and written directly (inline accessors).
//  - An object changes when one of its setters runs or touch() is called;
//    each change raises its revision (getRevision), which is how the nodes
//    notice it. A copy starts at revision 0 with the original's state and
//    connection flag.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>

class PbBase {
 public:
  virtual ~PbBase();

  // The connection flag, stored as given.
  TAVREL_ASSUMED void enableConnection(SbBool flag) { connectionEnabled = flag; }
  TAVREL_ASSUMED SbBool isConnectionEnabled() const { return connectionEnabled; }

  // Records a change of the object.
  void touch();

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY unsigned getRevision() const { return revision; }

 protected:
  PbBase() = default;
  PbBase(const PbBase& other) : connectionEnabled(other.connectionEnabled) {}
  PbBase& operator=(const PbBase&) = delete;

  // A change made by a setter: raises the revision.
  TAVREL_STANDIN_ONLY void changed() { ++revision; }

 private:
  SbBool connectionEnabled = 1;
  unsigned revision = 0;
};
