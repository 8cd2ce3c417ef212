// The toolkit stand-in's meshes and cells, without the binding.
#include <gtest/gtest.h>

#include <memory>

#include <Tavrel/PbCell.h>
#include <Tavrel/PbDefinedValue.h>
#include <Tavrel/PbIrregularMesh1D.h>
#include <Tavrel/PbPolarGrid2D.h>
#include <Tavrel/PbRegularCartesianGrid2D.h>
#include <Tavrel/PbTetrahedronMesh3D.h>
#include <Tavrel/PbTriangleMesh2D.h>

TEST(Mesh, ExtremesLeaveTheOutputAloneWhenTheSetIsMissing) {
  PbIrregularMesh1D mesh;
  float out = 42.0f;
  EXPECT_EQ(mesh.getMinValuesSet(3, out), 0);
  EXPECT_EQ(out, 42.0f);
  mesh.addValuesSet(3, nullptr, SbString("empty"));
  EXPECT_EQ(mesh.getMaxValuesSet(3, out), 0);
  EXPECT_EQ(out, 42.0f);
  EXPECT_EQ(mesh.getValuesSet(3), nullptr);
  EXPECT_NE(mesh.getValuesSetName(3), nullptr);
}

TEST(Mesh, ACopyHasItsOwnDataAndCells) {
  const float x[] = {0, 1, 0}, y[] = {0, 0, 1};
  const int triangle[] = {0, 1, 2};
  PbTriangleMesh2D mesh(3, x, y, 1, triangle, 0);
  const float values[] = {1, 2, 3};
  mesh.addValuesSet(0, values, SbString("v"));
  PbTriangleMesh2D copy(mesh);
  EXPECT_NE(copy.getValuesSet(0), mesh.getValuesSet(0));
  EXPECT_EQ(copy.getValuesSet(0)[2], 3.0f);
  ASSERT_NE(copy.getCell(0), nullptr);
  EXPECT_EQ(copy.getCell(0)->getMesh(), &copy);
  EXPECT_EQ(mesh.getCell(0)->getMesh(), &mesh);
  EXPECT_EQ(mesh.isDataDuplicated(), 0);
}

TEST(Mesh, CellsAreOwnedAndRenewedWhenTheGeometryChanges) {
  PbRegularCartesianGrid2D grid(3, 3, 0, 0, 2, 2, 1);
  const PbCell* first = grid.getCell(0);
  EXPECT_EQ(first, grid.getCell(0));
  EXPECT_EQ(grid.getCell(4), nullptr);
  grid.setGeometry(3, 3, 0, 0, 4, 4);
  EXPECT_FLOAT_EQ(grid.getCell(3)->getArea(), 4.0f);
}

TEST(Mesh, FanTriangulation) {
  const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
  PbTriangleMesh2D mesh(1);
  mesh.setGeometry(4, x, y);
  EXPECT_EQ(mesh.getNumCells(), 2);
  EXPECT_FLOAT_EQ(mesh.getArea(), 1.0f);
  mesh.setGeometry(2, x, y);
  EXPECT_EQ(mesh.getNumCells(), 0);
}

TEST(Cell, LocatesNodesAtTheirParametricCorners) {
  const float x[] = {1, 3, 1, 1}, y[] = {1, 1, 4, 1}, z[] = {0, 0, 0, 2};
  const int tet[] = {0, 1, 2, 3};
  PbTetrahedronMesh3D mesh(4, x, y, z, 1, tet, 1);
  const PbCell* cell = mesh.getCell(0);
  SbVec3f pcoord;
  EXPECT_EQ(cell->locatePoint(SbVec3f(3, 1, 0), 0, pcoord), 1);
  EXPECT_NEAR(pcoord[0], 1, 1e-5);
  EXPECT_NEAR(pcoord[1], 0, 1e-5);
  EXPECT_EQ(cell->locatePoint(SbVec3f(2, 2.5f, 1), 0, pcoord), 0);
  const float values[] = {0, 10, 20, 30};
  EXPECT_NEAR(cell->getValue(SbVec3f(0.25f, 0.25f, 0.25f), values), 15, 1e-5);
  EXPECT_FLOAT_EQ(cell->getVolume(), 2.0f);
}

namespace {
// Says that negative values are undefined and stand for -1 in every set.
class NonNegative : public PbDefinedValue {
 public:
  int operator()(float value, int, int) override { return value >= 0 ? 1 : 0; }
  float getUndef(int) override { return -1.0f; }
};
}  // namespace

TEST(Mesh, TheFaultMeshAsksTheFunctorAboutEveryPerNodeValue) {
  const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
  const int triangles[] = {0, 1, 2, 0, 2, 3};
  PbTriangleMesh2D mesh(4, x, y, 2, triangles, 1);
  const float values[] = {1, -5, 2, -0.5f};
  mesh.addValuesSet(7, values, SbString("h"));
  const float perCell[] = {3, 4};
  mesh.addValuesSet(8, perCell, PbMesh::PER_CELL, SbString("c"));
  NonNegative defined;
  const int line[] = {0, 2};
  std::unique_ptr<PbMesh2D> fault(mesh.getFaultMesh(2, line, nullptr, PbMesh2D::USE_ADJACENT_VALUES, defined));
  ASSERT_EQ(fault->getNumCells(), 2);
  const float* copied = fault->getValuesSet(7);
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied[0], 1.0f);
  EXPECT_EQ(copied[1], -1.0f);
  EXPECT_EQ(copied[3], -1.0f);
  EXPECT_EQ(fault->getValuesSet(8), nullptr) << "only per-node sets are copied";
}

TEST(Mesh, DataSetsAreResizedWhenTheNodeCountChanges) {
  const float x[] = {0, 1, 2};
  PbIrregularMesh1D mesh(3, x);
  const SbVec3f v[] = {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(0, 0, 1)};
  mesh.addVecsSet(0, v, SbString("v"));
  mesh.setGeometry(2, x);
  float longest = 0;
  ASSERT_EQ(mesh.getMaxVecsSet(0, longest), 1);
  EXPECT_EQ(longest, 1.0f);
  EXPECT_EQ(mesh.getNumCells(), 1);
  const float moved[] = {5, 6};
  mesh.setCoordinates(moved, nullptr, nullptr);
  EXPECT_EQ(mesh.getBoundingBox().getMin()[0], 5.0f);
}

TEST(Mesh, PolarCellsAreQuadranglesOfTheAnnulus) {
  const float radii[] = {1, 2}, angles[] = {0, 90};
  PbPolarGrid2D grid(2, 2, radii, angles, 1);
  const PbCell* cell = grid.getCell(0);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->getNumNodes(), 4);
  // The quadrangle (1,0) (0,1) (0,2) (2,0) has area 2 - 0.5.
  EXPECT_FLOAT_EQ(cell->getArea(), 1.5f);
  SbVec3f pcoord;
  EXPECT_EQ(grid.findContainingCell(SbVec3f(1, 1, 0), 0, pcoord), cell);
}
