// A path of nodes from a scene's root, as a pick gives it: the nodes in
// order and the picked point (in scene coordinates) at its tail.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The path keeps the nodes by address and takes no reference on them:
//    the nodes must outlive it.
//  - A new path is empty, its picked point (0, 0, 0).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>

#include <algorithm>
#include <vector>

class SoNode;

class SoPath {
 public:
  SoPath() = default;

  TAVREL_STANDIN_ONLY void append(SoNode* node) { nodes.push_back(node); }
  TAVREL_STANDIN_ONLY int getLength() const { return static_cast<int>(nodes.size()); }
  TAVREL_STANDIN_ONLY SoNode* getNode(int index) const { return nodes.at(static_cast<std::size_t>(index)); }
  TAVREL_STANDIN_ONLY bool containsNode(const SoNode* node) const { return std::find(nodes.begin(), nodes.end(), node) != nodes.end(); }
  TAVREL_STANDIN_ONLY void setPickedPoint(const SbVec3f& point) { pickedPoint = point; }
  TAVREL_STANDIN_ONLY const SbVec3f& getPickedPoint() const { return pickedPoint; }

 private:
  std::vector<SoNode*> nodes;
  SbVec3f pickedPoint;
};
