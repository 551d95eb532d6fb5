// The computer's decisions on the cube board where the scripted games do not
// reach them.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/zorvex/computer.h"

namespace vrask::cube {
namespace {

TEST(ZorvexComputer, OmbrelFinishesTheLowestSquareAtThreeAndOtherwiseKeepsSquaresBelowThree) {
  Tables t = settables();
  PerSquare painted{};
  painted[30] = painted[7] = 3;
  EXPECT_EQ(squareToFinish(painted), 7);
  painted = {};
  painted[1] = 2;  // lines 1, 11, 3, 12
  PerLine lineowner{};
  lineowner[1] = lineowner[11] = 2;
  std::vector<int> safe = safeLines(t, painted, lineowner);
  EXPECT_EQ(safe.size(), 50U);
  for (int L : {1, 3, 11, 12}) EXPECT_EQ(std::count(safe.begin(), safe.end(), L), 0) << L;
  // With every free line in a square at two, nothing is safe.
  lineowner.fill(1);
  lineowner[3] = 0;
  EXPECT_TRUE(safeLines(t, painted, lineowner).empty());
  EXPECT_EQ(freeLines(lineowner), std::vector<int>{3});
}

TEST(ZorvexComputer, SquaresFinishesACubeAtFiveAndAvoidsCubesAtFour) {
  Tables t = settables();
  CubeFaces faces{};
  PerSquare circlestate{};
  // Cube 3 (3, 7, 14, 18, 25, 29) at four: 25 and 29 would give it away.
  for (int s : {3, 7, 14, 18}) circlestate[s] = 255;
  faces[3] = {0, 1, 1, 1, 1, 0, 0};
  EXPECT_EQ(cubeToFinish(t, faces), 0);
  std::vector<int> candidates = squareCandidates(t, faces, circlestate);
  EXPECT_EQ(candidates.size(), 30U);
  EXPECT_EQ(std::count(candidates.begin(), candidates.end(), 25), 0);
  faces[3][5] = 1;
  EXPECT_EQ(cubeToFinish(t, faces), 29);
  // When every free square would give a cube away, any free square will do.
  circlestate.fill(255);
  circlestate[25] = circlestate[29] = 0;
  faces[3][5] = 0;
  EXPECT_EQ(squareCandidates(t, faces, circlestate), (std::vector<int>{25, 29}));
}

TEST(ZorvexComputer, VraskScanTakesTheFreeSquareWithMostPaintedLinesLowestFirst) {
  SquareInks inks{};
  PerSquare circlestate{};
  inks[20] = {0, 255, 255, 255, 0};
  inks[9] = {0, 16711680, 0, 255, 0};
  inks[5] = {0, 255, 16711680, 255, 16711680};
  circlestate[5] = 2;  // played: never chosen, however full
  PerSquare painted = paintedSides(inks);
  EXPECT_EQ(vraskScan(painted, circlestate), 20);
  inks[30] = {0, 16711680, 16711680, 255, 255};
  EXPECT_EQ(vraskScan(paintedSides(inks), circlestate), 30);
  EXPECT_EQ(vraskScan(PerSquare{}, circlestate), 0);
  EXPECT_EQ(freeSquares(circlestate).size(), 35U);
}

}  // namespace
}  // namespace vrask::cube
