// A one-dimensional mesh of n evenly spaced nodes from xmin to xmax (one node
// sits at xmin). It keeps no coordinate arrays.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh1D.h>

class PbRegularMesh1D : public PbMesh1D {
 public:
  PbRegularMesh1D();
  PbRegularMesh1D(const PbRegularMesh1D& other);
  PbRegularMesh1D& operator=(const PbRegularMesh1D& other) = default;
  PbRegularMesh1D(int numNodes, float xmin, float xmax);
  void setGeometry(int numNodes, float xmin, float xmax);

 protected:
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;

 private:
  void assign(int numNodes, float xmin, float xmax);
  float xmin = 0.0f;
  float xmax = 0.0f;
};
