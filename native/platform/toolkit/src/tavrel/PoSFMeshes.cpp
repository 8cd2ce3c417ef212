// The mesh fields: types, values, comparison, geometry and data sets.

#include <Corvel/CallJournal.h>
#include <Corvel/SoSubClass.h>
#include <Tavrel/PbIndexedNodes.h>
#include <Tavrel/PoSFCartesianGrid2D.h>
#include <Tavrel/PoSFCartesianGrid3D.h>
#include <Tavrel/PoSFHexahedronMesh3D.h>
#include <Tavrel/PoSFIndexedMesh2D.h>
#include <Tavrel/PoSFIndexedMesh3D.h>
#include <Tavrel/PoSFIrregularMesh1D.h>
#include <Tavrel/PoSFMesh.h>
#include <Tavrel/PoSFParalCartesianGrid2D.h>
#include <Tavrel/PoSFParalCartesianGrid3D.h>
#include <Tavrel/PoSFPolarGrid2D.h>
#include <Tavrel/PoSFQuadrangleMesh2D.h>
#include <Tavrel/PoSFRegularCartesianGrid2D.h>
#include <Tavrel/PoSFRegularCartesianGrid3D.h>
#include <Tavrel/PoSFRegularMesh1D.h>
#include <Tavrel/PoSFTetrahedronMesh3D.h>
#include <Tavrel/PoSFTriangleMesh2D.h>

// --- PoSFMesh ------------------------------------------------------------------------

namespace {
SoType meshFieldType() {
  static SoType type;
  tk::ClassRegistrationLock lock;
  if (type.isBad()) type = SoType::createType(SoField::getClassTypeId(), "PoSFMesh");
  return type;
}

// A binding as the journal shows it (as PbMesh does).
JournalName bindingName(PoMeshProperty::DataBinding binding) {
  return JournalName{binding == PoMeshProperty::PER_CELL ? "PER_CELL" : "PER_NODE"};
}
}  // namespace

SoType PoSFMesh::getClassTypeId() {
  CallJournal::record("PoSFMesh::getClassTypeId");
  return meshFieldType();
}

SoType PoSFMesh::getTypeId() const { return meshFieldType(); }

PoSFMesh::PoSFMesh() = default;
PoSFMesh::~PoSFMesh() = default;

void PoSFMesh::addValuesSet(int set, const float* values, const SbString& name) {
  addValuesSetAs("PoSFMesh::addValuesSet", set, values, name);
}

void PoSFMesh::addValuesSet(int set, const float* values, PoMeshProperty::DataBinding binding,
                            const SbString& name) {
  addValuesSetAs("PoSFMesh::addValuesSet", set, values, binding, name);
}

void PoSFMesh::addStringsSet(int set, const SbString* strings, const SbString& name) {
  addStringsSetAs("PoSFMesh::addStringsSet", set, strings, name);
}

void PoSFMesh::addVecsSet(int set, const SbVec3f* vectors, const SbString& name) {
  addVecsSetAs("PoSFMesh::addVecsSet", set, vectors, name);
}

void PoSFMesh::addValuesSetAs(const char* function, int set, const float* values, const SbString& name) {
  PbMesh& mesh = heldMesh();
  CallJournal::record(function, set, journalArray(values, mesh.numberOfNodes()), name);
  mesh.addValuesSet(set, values, name);
  valueChanged();
}

void PoSFMesh::addValuesSetAs(const char* function, int set, const float* values,
                              PoMeshProperty::DataBinding binding, const SbString& name) {
  PbMesh& mesh = heldMesh();
  const int length = binding == PoMeshProperty::PER_CELL ? mesh.numberOfCells() : mesh.numberOfNodes();
  CallJournal::record(function, set, journalArray(values, length), bindingName(binding), name);
  mesh.addValuesSet(set, values, static_cast<PbMesh::DataBinding>(binding), name);
  valueChanged();
}

void PoSFMesh::addStringsSetAs(const char* function, int set, const SbString* strings, const SbString& name) {
  PbMesh& mesh = heldMesh();
  CallJournal::record(function, set, journalArray(strings, mesh.numberOfNodes()), name);
  mesh.addStringsSet(set, strings, name);
  valueChanged();
}

void PoSFMesh::addVecsSetAs(const char* function, int set, const SbVec3f* vectors, const SbString& name) {
  PbMesh& mesh = heldMesh();
  CallJournal::record(function, set, journalArray(vectors, mesh.numberOfNodes()), name);
  mesh.addVecsSet(set, vectors, name);
  valueChanged();
}

// --- the fifteen fields ------------------------------------------------------------------

// Type, construction (the held mesh made with the given arguments), value,
// comparison and evaluation of one mesh field.
#define PO_SF_MESH_SOURCE(className, MeshClass, ...)                                                     \
  namespace {                                                                                            \
  SoType className##Type() {                                                                             \
    static SoType type;                                                                                  \
    tk::ClassRegistrationLock lock;                                                                      \
    if (type.isBad())                                                                                    \
      type = SoType::createType(meshFieldType(), #className,                                             \
                                [](SoType*) -> void* { return static_cast<SoField*>(new className); }); \
    return type;                                                                                         \
  }                                                                                                      \
  tk::ClassInitializerEntry className##Initializer([] { className##Type(); });                           \
  }                                                                                                      \
  SoType className::getClassTypeId() {                                                                   \
    CallJournal::record(#className "::getClassTypeId");                                                  \
    return className##Type();                                                                            \
  }                                                                                                      \
  SoType className::getTypeId() const { return className##Type(); }                                      \
  className::className() : value(__VA_ARGS__) { CallJournal::record(#className "::" #className); }      \
  className::~className() = default;                                                                     \
  PbMesh& className::heldMesh() const { return const_cast<MeshClass&>(value); }                         \
  void className::setValue(const MeshClass& mesh) {                                                      \
    CallJournal::record(#className "::setValue", static_cast<const void*>(&mesh));                       \
    value = mesh;                                                                                        \
    valueChanged();                                                                                      \
  }                                                                                                      \
  int className::operator==(const className& other) const {                                              \
    CallJournal::record(#className "::operator==", static_cast<const void*>(&other));                    \
    return getValue().sameMeshAs(other.getValue()) ? 1 : 0;                                              \
  }                                                                                                      \
  void className::copyValueFrom(const SoField& other) {                                                  \
    if (const auto* from = dynamic_cast<const className*>(&other)) {                                     \
      value = from->value;                                                                               \
      valueChanged();                                                                                    \
    }                                                                                                    \
  }

// One setGeometry: journals the call with ARGS, passes the same arguments to
// the held mesh and tells the connected fields.
#define PO_SF_SET_GEOMETRY(className, PARAMS, ARGS, ...)                   \
  void className::setGeometry PARAMS {                                     \
    CallJournal::record(#className "::setGeometry", __VA_ARGS__);          \
    value.setGeometry ARGS;                                                \
    valueChanged();                                                        \
  }

namespace {
long product(long a, long b, long c = 1) { return a * b * c; }
long cellList(int numCells, const int* cellTypes) { return PbIndexedNodes::listLength(numCells, cellTypes, 0); }
long fixed(int numCells, int perCell) { return numCells > 0 ? static_cast<long>(numCells) * perCell : 0; }
}  // namespace

PO_SF_MESH_SOURCE(PoSFCartesianGrid2D, PbCartesianGrid2D, 1)
PO_SF_SET_GEOMETRY(PoSFCartesianGrid2D, (int nx, int ny, const float* x, const float* y, const float* z),
                   (nx, ny, x, y, z), nx, ny, journalArray(x, product(nx, ny)), journalArray(y, product(nx, ny)),
                   journalArray(z, product(nx, ny)))

PO_SF_MESH_SOURCE(PoSFParalCartesianGrid2D, PbParalCartesianGrid2D, 1)
PO_SF_SET_GEOMETRY(PoSFParalCartesianGrid2D, (int nx, int ny, const float* x, const float* y, const float* z),
                   (nx, ny, x, y, z), nx, ny, journalArray(x, nx), journalArray(y, ny),
                   journalArray(z, product(nx, ny)))

PO_SF_MESH_SOURCE(PoSFPolarGrid2D, PbPolarGrid2D, 1)
PO_SF_SET_GEOMETRY(PoSFPolarGrid2D, (int nx, int ny, const float* x, const float* y, const float* z),
                   (nx, ny, x, y, z), nx, ny, journalArray(x, nx), journalArray(y, ny),
                   journalArray(z, product(nx, ny)))

PO_SF_MESH_SOURCE(PoSFRegularCartesianGrid2D, PbRegularCartesianGrid2D, 1)
PO_SF_SET_GEOMETRY(PoSFRegularCartesianGrid2D,
                   (int nx, int ny, float xmin, float ymin, float xmax, float ymax, const float* z),
                   (nx, ny, xmin, ymin, xmax, ymax, z), nx, ny, xmin, ymin, xmax, ymax,
                   journalArray(z, product(nx, ny)))

PO_SF_MESH_SOURCE(PoSFCartesianGrid3D, PbCartesianGrid3D, 1)
PO_SF_SET_GEOMETRY(PoSFCartesianGrid3D, (int nx, int ny, int nz, const float* x, const float* y, const float* z),
                   (nx, ny, nz, x, y, z), nx, ny, nz, journalArray(x, product(nx, ny, nz)),
                   journalArray(y, product(nx, ny, nz)), journalArray(z, product(nx, ny, nz)))

PO_SF_MESH_SOURCE(PoSFParalCartesianGrid3D, PbParalCartesianGrid3D, 1)
PO_SF_SET_GEOMETRY(PoSFParalCartesianGrid3D, (int nx, int ny, int nz, const float* x, const float* y, const float* z),
                   (nx, ny, nz, x, y, z), nx, ny, nz, journalArray(x, nx), journalArray(y, ny), journalArray(z, nz))

PO_SF_MESH_SOURCE(PoSFRegularCartesianGrid3D, PbRegularCartesianGrid3D, 1)
PO_SF_SET_GEOMETRY(PoSFRegularCartesianGrid3D,
                   (int nx, int ny, int nz, float xmin, float ymin, float zmin, float xmax, float ymax, float zmax),
                   (nx, ny, nz, xmin, ymin, zmin, xmax, ymax, zmax), nx, ny, nz, xmin, ymin, zmin, xmax, ymax, zmax)

PO_SF_MESH_SOURCE(PoSFIndexedMesh2D, PbIndexedMesh2D, 1)
PO_SF_SET_GEOMETRY(PoSFIndexedMesh2D,
                   (int n, const float* x, const float* y, int numCells, const int* cellTypes, const int* cellIndex),
                   (n, x, y, numCells, cellTypes, cellIndex), n, journalArray(x, n), journalArray(y, n), numCells,
                   journalArray(cellTypes, numCells), journalArray(cellIndex, cellList(numCells, cellTypes)))
PO_SF_SET_GEOMETRY(PoSFIndexedMesh2D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                    const int* cellIndex),
                   (n, x, y, z, numCells, cellTypes, cellIndex), n, journalArray(x, n), journalArray(y, n),
                   journalArray(z, n), numCells, journalArray(cellTypes, numCells),
                   journalArray(cellIndex, cellList(numCells, cellTypes)))

PO_SF_MESH_SOURCE(PoSFIndexedMesh3D, PbIndexedMesh3D, 1)
PO_SF_SET_GEOMETRY(PoSFIndexedMesh3D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                    const int* cellIndex),
                   (n, x, y, z, numCells, cellTypes, cellIndex), n, journalArray(x, n), journalArray(y, n),
                   journalArray(z, n), numCells, journalArray(cellTypes, numCells),
                   journalArray(cellIndex, cellList(numCells, cellTypes)))

PO_SF_MESH_SOURCE(PoSFTriangleMesh2D, PbTriangleMesh2D, 1)
PO_SF_SET_GEOMETRY(PoSFTriangleMesh2D, (int n, const float* x, const float* y, int numCells, const int* cells),
                   (n, x, y, numCells, cells), n, journalArray(x, n), journalArray(y, n), numCells,
                   journalArray(cells, fixed(numCells, 3)))
PO_SF_SET_GEOMETRY(PoSFTriangleMesh2D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cells),
                   (n, x, y, z, numCells, cells), n, journalArray(x, n), journalArray(y, n), journalArray(z, n),
                   numCells, journalArray(cells, fixed(numCells, 3)))
PO_SF_SET_GEOMETRY(PoSFTriangleMesh2D, (int n, const float* x, const float* y), (n, x, y), n, journalArray(x, n),
                   journalArray(y, n))

PO_SF_MESH_SOURCE(PoSFQuadrangleMesh2D, PbQuadrangleMesh2D, 1)
PO_SF_SET_GEOMETRY(PoSFQuadrangleMesh2D, (int n, const float* x, const float* y, int numCells, const int* cells),
                   (n, x, y, numCells, cells), n, journalArray(x, n), journalArray(y, n), numCells,
                   journalArray(cells, fixed(numCells, 4)))
PO_SF_SET_GEOMETRY(PoSFQuadrangleMesh2D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cells),
                   (n, x, y, z, numCells, cells), n, journalArray(x, n), journalArray(y, n), journalArray(z, n),
                   numCells, journalArray(cells, fixed(numCells, 4)))

PO_SF_MESH_SOURCE(PoSFTetrahedronMesh3D, PbTetrahedronMesh3D, 1)
PO_SF_SET_GEOMETRY(PoSFTetrahedronMesh3D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cells),
                   (n, x, y, z, numCells, cells), n, journalArray(x, n), journalArray(y, n), journalArray(z, n),
                   numCells, journalArray(cells, fixed(numCells, 4)))

PO_SF_MESH_SOURCE(PoSFHexahedronMesh3D, PbHexahedronMesh3D, 1)
PO_SF_SET_GEOMETRY(PoSFHexahedronMesh3D,
                   (int n, const float* x, const float* y, const float* z, int numCells, const int* cells),
                   (n, x, y, z, numCells, cells), n, journalArray(x, n), journalArray(y, n), journalArray(z, n),
                   numCells, journalArray(cells, fixed(numCells, 8)))

PO_SF_MESH_SOURCE(PoSFIrregularMesh1D, PbIrregularMesh1D)
PO_SF_SET_GEOMETRY(PoSFIrregularMesh1D, (int n, const float* x), (n, x), n, journalArray(x, n))

PO_SF_MESH_SOURCE(PoSFRegularMesh1D, PbRegularMesh1D)
PO_SF_SET_GEOMETRY(PoSFRegularMesh1D, (int n, float xmin, float xmax), (n, xmin, xmax), n, xmin, xmax)
