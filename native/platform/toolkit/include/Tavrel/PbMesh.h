// Base of every mesh: node and cell counts, node coordinates, bounding box,
// cells, cell search and the mesh's data sets.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Data duplication: every mesh copies the geometry and the data it is
//    given into memory it owns, whatever its data-duplication flag says; the
//    flag is only kept and reported by isDataDuplicated(). (A mesh whose flag
//    is off could keep the caller's pointers; this one never does, so the
//    caller may release its arrays as soon as a call returns.)
//  - Data sets are addressed by a set index of the caller's choice. Adding a
//    set under an index that already holds one replaces it (data, name and
//    binding). Values sets hold one float per node (PER_NODE) or per cell
//    (PER_CELL); vecs sets one SbVec3f per node; strings sets one SbString per
//    node. A set added with a null data pointer exists (it has a name and a
//    binding) but has no data: its getter returns null and its min/max fail.
//  - getValuesBinding of a missing set is PER_NODE.
//  - remove...Set(set) returns TRUE when the set existed (and is now gone).
//  - getMin/MaxValuesSet give the smallest/largest value, getMin/MaxVecsSet
//    the smallest/largest vector length; they return FALSE and leave the
//    output alone when the set is missing or has no data or no element.
//  - When the geometry changes, the cells handed out so far become invalid;
//    the data sets stay, resized (new elements 0) when the node or cell count
//    changed, which moves them in memory.
//  - Cells: getCell(i) gives a cell owned by the mesh (null outside
//    0..getNumCells()-1); findContainingCell tests the adjacent cell first,
//    then every cell in order, and gives the first that contains the point
//    within the tolerance (see PbCell::locatePoint), or null.
//  - getVolume sums the volumes of the cells and getArea their areas (so a 2D
//    mesh has a volume of 0 and a 3D mesh an area of 0).
//  - getSmallestCellBox/getBiggestCellBox compare the diagonals of the cells'
//    bounding boxes (the first cell wins a tie); a mesh without cells gives
//    an empty box and leaves the cell index alone.
//  - The base class's setCoordinates does nothing and its getCoordinates
//    leaves its outputs untouched: only meshes that keep coordinate arrays
//    override them (see each class).
//  - Assigning a mesh to another of the same class (operator=, which the mesh
//    fields use) copies its geometry, data sets and data-duplication flag,
//    and frees the cells handed out so far, as a change of geometry does.
//  - sameMeshAs (what the mesh fields compare) is true when both meshes are of
//    the same class and have the same node coordinates, the same cells (the
//    same nodes, in order) and the same data sets (index, name, binding and
//    data); floats compare exactly, and the data-duplication flag is left out.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>
#include <Corvel/SbBox.h>
#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>

#include <map>
#include <memory>
#include <vector>

class PbCell;

class PbMesh {
 public:
  enum DataBinding { PER_CELL = 0, PER_NODE = 1 };

  virtual ~PbMesh();

  int getNumNodes() const;
  int getNumCells() const;
  SbBool isDataDuplicated() const;
  DataBinding getValuesBinding(int set) const;

  virtual float getVolume() const;
  virtual float getArea() const;
  virtual const PbCell* getCell(int cellIndex) const;
  virtual const PbCell* findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                           const PbCell* adjacentCell) const;
  virtual const PbCell* findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const;
  virtual const PbCell* getTopoCell(int cellIndex) const;

  virtual void addValuesSet(int set, const float* values, const SbString& name);
  void addValuesSet(int set, const float* values, DataBinding binding, const SbString& name);
  virtual void addVecsSet(int set, const SbVec3f* vectors, const SbString& name);
  virtual void addStringsSet(int set, const SbString* strings, const SbString& name);

  virtual int getNumValuesSet() const;
  virtual int getNumStringsSet() const;
  virtual int getNumVecsSet() const;
  virtual const SbString* getValuesSetName(int set) const;
  virtual const SbString* getStringsSetName(int set) const;
  virtual const SbString* getVecsSetName(int set) const;
  virtual const float* getValuesSet(int set) const;
  virtual const SbVec3f* getVecsSet(int set) const;
  TAVREL_STANDIN_ONLY virtual const SbString* getStringsSet(int set) const;
  virtual SbBool removeValuesSet(int set);
  virtual SbBool removeStringsSet(int set);
  virtual SbBool removeVecsSet(int set);
  virtual void removeAllValuesSet();
  virtual void removeAllStringsSet();
  virtual void removeAllVecsSet();
  virtual SbBool getMinValuesSet(int set, float& min) const;
  virtual SbBool getMaxValuesSet(int set, float& max) const;
  virtual SbBool getMinVecsSet(int set, float& min) const;
  virtual SbBool getMaxVecsSet(int set, float& max) const;

  virtual void setCoordinates(const float* x, const float* y, const float* z);
  virtual void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const;
  virtual SbVec3f getNodeCoord(int nodeIndex) const;
  SbBox3f getBoundingBox() const;
  virtual SbBox3f getSmallestCellBox(int& cellIndex) const;
  virtual SbBox3f getBiggestCellBox(int& cellIndex) const;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY SbVec3f nodeAt(int nodeIndex) const { return nodeCoord(nodeIndex); }
  // Node indices of a cell (empty when the mesh has no such cell).
  TAVREL_STANDIN_ONLY virtual void cellNodes(int cellIndex, std::vector<int>& nodes) const;
  TAVREL_STANDIN_ONLY const PbCell* cellAt(int cellIndex) const;
  // One value per cell from a values set: the set's own value for a PER_CELL
  // set, the mean of the values of the cell's nodes for a PER_NODE set (node
  // indices outside the mesh are left out; a cell without nodes gets 0), and 0
  // for every cell when the set is missing or has no data.
  TAVREL_STANDIN_ONLY std::vector<float> cellValues(int set) const;
  TAVREL_STANDIN_ONLY int numberOfNodes() const { return numNodes; }
  TAVREL_STANDIN_ONLY int numberOfCells() const { return numCells; }
  // Whether the other mesh is the same (see above).
  TAVREL_STANDIN_ONLY bool sameMeshAs(const PbMesh& other) const;
  // Counts the changes of geometry: the cells handed out before the last change
  // are freed.
  TAVREL_STANDIN_ONLY unsigned long getGeometryVersion() const { return geometryVersion; }

 protected:
  explicit PbMesh(int isDataDuplicated);
  PbMesh(const PbMesh& other);
  PbMesh& operator=(const PbMesh& other);

  TAVREL_STANDIN_ONLY virtual SbVec3f nodeCoord(int nodeIndex) const = 0;
  // A new cell for the index (null when the mesh has none).
  TAVREL_STANDIN_ONLY virtual PbCell* newCell(int cellIndex) const;
  virtual const PbCell* findContainingCellProtected(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                                    const PbCell* adjacentCell) const;
  struct ValuesSet {
    std::vector<float> data;
    TAVREL_STANDIN_ONLY bool hasData = false;
    DataBinding binding = PER_NODE;
    SbString name;
  };
  TAVREL_STANDIN_ONLY const std::map<int, ValuesSet>& valuesSets() const { return values; }
  TAVREL_STANDIN_ONLY int duplicationFlag() const { return dataDuplicated; }
  // The data-set operations without the journal.
  TAVREL_STANDIN_ONLY void putValues(int set, const float* data, DataBinding binding, const SbString& name);
  TAVREL_STANDIN_ONLY void putVecs(int set, const SbVec3f* data, const SbString& name);
  TAVREL_STANDIN_ONLY int countNodes() const { return numNodes; }
  TAVREL_STANDIN_ONLY int countCells() const { return numCells; }
  // Coordinates that the cell search compares: 3, or 2 (x, y) for 2D meshes.
  TAVREL_STANDIN_ONLY virtual int searchDimensions() const { return 3; }
  // To be called by every concrete class when its geometry is in place.
  TAVREL_STANDIN_ONLY void geometryChanged(int numNodes, int numCells);
  TAVREL_STANDIN_ONLY SbBox3f cellBox(int& cellIndex, bool biggest) const;

 private:
  template <class T>
  struct Set {
    std::vector<T> data;
    TAVREL_STANDIN_ONLY bool hasData = false;
    SbString name;
  };
  int length(DataBinding binding) const { return binding == PER_CELL ? numCells : numNodes; }
  const ValuesSet* valuesSet(int set) const;

  int numNodes = 0;
  int numCells = 0;
  int dataDuplicated;
  SbBox3f boundingBox;
  std::map<int, ValuesSet> values;
  std::map<int, Set<SbVec3f>> vecs;
  std::map<int, Set<SbString>> strings;
  mutable std::vector<std::unique_ptr<PbCell>> cells;
  unsigned long geometryVersion = 0;
};
