// Storage of the unstructured meshes of this toolkit (PbIndexedMesh2D,
// PbIndexedMesh3D and their subclasses): node arrays and cells given by a node
// count each and a list of node indices. Not journaled.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>

#include <vector>

class PbIndexedNodes {
 public:
  // Copies the nodes (z may be null: no elevations) and the cells. cellTypes
  // may be null when every cell has `fixed` nodes.
  TAVREL_STANDIN_ONLY void assign(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
              int fixed, const int* cellIndex);
  // Replaces each non-null coordinate array (numNodes values).
  TAVREL_STANDIN_ONLY void replace(const float* x, const float* y, const float* z);
  TAVREL_STANDIN_ONLY int numNodes() const { return static_cast<int>(xs.size()); }
  TAVREL_STANDIN_ONLY int numCells() const { return static_cast<int>(starts.size()) - 1; }
  SbVec3f node(int n) const { return SbVec3f(xs[n], ys[n], zs.empty() ? 0.0f : zs[n]); }
  TAVREL_STANDIN_ONLY void cellNodes(int cellIndex, std::vector<int>& nodes) const;
  // The coordinate arrays; z is null without elevations.
  TAVREL_STANDIN_ONLY void arrays(const float*& x, const float*& y, const float*& z) const;

  // Number of entries of the node list: the sum of the cell types, or
  // numCells * fixed when every cell has the same number of nodes.
  TAVREL_STANDIN_ONLY static long listLength(int numCells, const int* cellTypes, int fixed);

 private:
  std::vector<float> xs, ys, zs;
  std::vector<int> starts{0};  // numCells + 1 offsets into nodeList
  std::vector<int> nodeList;
};
