// The toolkit stand-in's meshes and cells, without the binding.
#include <gtest/gtest.h>

#include <Tavrel/PbCell.h>
#include <Tavrel/PbIrregularMesh1D.h>
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
