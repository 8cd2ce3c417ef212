// Base of the mesh representations: the mesh drawn, the data mappings that
// colour it (by value and by vector module) and the isovalues that contouring
// uses.
//
// The node keeps the addresses it is given: it neither copies nor frees the
// objects, and the getters return exactly the address last set (null before
// any set). A null address is accepted and means "none".
//
// Drawing (GLRender) and callback traversals select the cells to draw: the
// representation asks the state's current cell filter (the last PoCellFilter
// the traversal went through, see PoCellFilterElement.h) about every cell of its mesh,
// with the cell's value, and keeps the indices of the accepted cells
// (selectedCells, replaced by each such traversal). Without a filter, or
// outside apply (where an action has no state), every cell is accepted. The value of a cell comes from the mesh's values set 0:
// its value for a per-cell set, the mean of the cell's nodes' values for a
// per-node set, and 0 without that set or without data in it
// (PbMesh::cellValues). The mesh is the one given to the most derived
// setter: a 2D (3D) representation's PoMesh2D (PoMesh3D) mesh, else the
// PoMesh one, else the state's current mesh (the mesh of the last mesh node
// the traversal went through, see PoMeshElement.h; of whatever dimension). Without
// a mesh nothing is asked and no cell is selected. Each
// selection is journaled as "PoMesh::selectCells(filter, numCells,
// [accepted cells])". Other actions select nothing.
//
// The same traversals also take the attributes the representation draws
// with: its own data mapping and isovalues list when it has them, else the
// state's current ones (PoDataMappingElement, PoIsovaluesListElement, set by
// the property nodes traversed before it), and the state's current domain
// (PoDomainElement). What it drew with is shown, as text, in fields of its
// own that SoNode::getField finds (not journaled):
//   "drawnCells"  the indices of the selected cells;
//   "cellColors"  the colour the data mapping gives each selected cell's
//                 value, "r g b" after "r g b" (empty without a mapping);
//   "isovalues"   the values of the isovalues list (empty without one);
//   "domain"      the current domain's box, "xmin ymin zmin xmax ymax zmax"
//                 (empty without one).
// Numbers are written with up to 9 significant digits. Each such traversal
// replaces all four; outside apply only the representation's own mapping
// and isovalues count.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoDessvane.h>

#include <mutex>
#include <vector>

class PbMesh;
class PbDataMapping;
class PbIsovaluesList;
class SoField;
class SoState;

class PoMesh : public PoDessvane {
  SO_KIT_HEADER(PoMesh)

 public:
  enum ColoringTypes : int {
    COLORINHERITED = 0,
    COLORAVERAGE = 1,
    COLORMAPPING = 2,
    COLORCONTOURING = 3,
    COLORTEXTURECONTOURING = 4
  };

  void setMesh(PbMesh* mesh);
  PbMesh* getMesh() const;
  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;
  void setModuleDataMapping(PbDataMapping* mapping);
  PbDataMapping* getModuleDataMapping() const;
  void setIsovaluesList(PbIsovaluesList* isovalues);
  PbIsovaluesList* getIsovaluesList() const;

  void GLRender(SoGLRenderAction* action) override;
  void callback(SoCallbackAction* action) override;

  // --- Used inside this toolkit (not journaled) ---
  // The cells accepted by the last drawing or callback traversal.
  TAVREL_STANDIN_ONLY std::vector<int> selectedCells() const {
    std::lock_guard<std::mutex> lock(reportLock);
    return selected;
  }

 protected:
  PoMesh();
  ~PoMesh() override;

  // The mesh drawn (see above).
  TAVREL_STANDIN_ONLY virtual const PbMesh* drawnMesh() const;

 private:
  void selectCells(SoAction* action);
  // Keeps the cells chosen and writes what the traversal drew with into the
  // report fields.
  void report(SoState* state, std::vector<int> chosen, const std::vector<float>& cellValues);

  SoField* drawnCellsField;
  SoField* cellColorsField;
  SoField* isovaluesField;
  SoField* domainField;

  // Traversals on several threads may draw the node at once: each works on
  // its own selection and writes the results under the lock.
  mutable std::mutex reportLock;
  std::vector<int> selected;
  PbMesh* mesh = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbDataMapping* moduleDataMapping = nullptr;
  PbIsovaluesList* isovaluesList = nullptr;
};
