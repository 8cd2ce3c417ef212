// Objects that a node keeps by address (meshes, data mappings, isovalue lists,
// formats, text attributes): set from a handle, read back as a handle.
#pragma once

#include <jni.h>

#include "common/Handles.h"

namespace tavrel {

// Calls the node's setter with the object's address (0 gives a null pointer).
template <class Node, class Object>
inline void setLink(jlong node, void (Node::*setter)(Object*), jlong object) {
  (fromHandle<Node>(node)->*setter)(fromHandle<Object>(object));
}

// Calls the node's getter; the address it returns, 0 for a null pointer.
template <class Node, class Object>
inline jlong getLink(jlong node, Object* (Node::*getter)() const) {
  return toHandle((fromHandle<Node>(node)->*getter)());
}

}  // namespace tavrel
