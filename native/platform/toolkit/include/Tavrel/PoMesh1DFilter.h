// Base of the filters of 1D meshes: property nodes that choose which points
// of a 1D mesh the graphs after them draw. Abstract: selectPoints is pure.
//
// The points of a 1D mesh (PbRegularMesh1D, PbIrregularMesh1D) are its
// nodes in order: point i has x the node's coordinate and y its value in the
// mesh's values set 0 (0 without that set or without data in it). A filter
// answers with the indices of the points it keeps, in increasing order. When
// traversed a filter becomes the state's current 1D-mesh filter
// (PoMesh1DFilterElement).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

#include <vector>

class PbMesh;

class PoMesh1DFilter : public PoNode, public PoStateSetter {
  SO_NODE_HEADER(PoMesh1DFilter)

 public:
  void doAction(SoAction* action) override;
  TAVREL_STANDIN_ONLY void makeCurrent(SoAction* action) const override;

  // --- Used inside this toolkit (not journaled) ---
  // The points kept among numPoints points (x[i], y[i]).
  TAVREL_STANDIN_ONLY virtual std::vector<int> selectPoints(int numPoints, const float* x, const float* y) const = 0;
  // The points of the mesh kept by the filter; every point without a filter.
  TAVREL_STANDIN_ONLY static std::vector<int> selectPoints(const PoMesh1DFilter* filter, const PbMesh& mesh);

 protected:
  PoMesh1DFilter();
  ~PoMesh1DFilter() override;
};

// The members every concrete 1D-mesh filter declares.
#define PO_MESH1D_FILTER_HEADER(className)                                                   \
  SO_NODE_HEADER(className)                                                                  \
                                                                                             \
 public:                                                                                     \
  className();                                                                               \
  std::vector<int> selectPoints(int numPoints, const float* x, const float* y) const override; \
                                                                                             \
 protected:                                                                                  \
  ~className() override;                                                                     \
                                                                                             \
 public:
