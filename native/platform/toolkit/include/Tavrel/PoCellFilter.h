// A node that tells the representations which cells to draw: acceptCell(i, v)
// answers whether cell i, whose value is v, is accepted. acceptCell is pure.
//
// doAction records its call, makes the filter the current cell filter of the
// action's state (as PoNode's action operations do, see PoNode.h) and
// traverses the node's children; write writes nothing (a cell filter is not
// written to files). The representations traversed afterwards ask the current
// filter about their cells (PoMesh.h).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoNode.h>

#include <vector>

class PoCellFilter : public PoNode {
  SO_NODE_HEADER(PoCellFilter)

 public:
  void doAction(SoAction* action) override;
  void write(SoWriteAction* action) override;
  virtual SbBool acceptCell(int index, float value) const = 0;

  // What a representation does with its cell filter: asks about each cell
  // 0..numCells-1 in turn, with the cell's value (values[i], or 0 when values
  // is null), and keeps the indices of the accepted ones. A null filter
  // accepts every cell.
  TAVREL_STANDIN_ONLY static std::vector<int> selectCells(const PoCellFilter* filter, int numCells, const float* values);

  // --- Used inside this toolkit (not journaled) ---
  // Makes the filter the current cell filter of the action's state, if the
  // action has one.
  TAVREL_STANDIN_ONLY void makeCurrent(SoAction* action) const;

 protected:
  PoCellFilter();
  ~PoCellFilter() override;
};
