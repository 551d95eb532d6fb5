// The cube board as the expert sees it: squares and their lines in Ombrel,
// small cubes and their squares in Zorvex (Squares).
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "boards/zorvex/expert_view.h"
#include "frame/expert_lines.h"

namespace vrask::cube {
namespace {

// How many cells hold each side, and how many sides have each count.
std::map<int, int> sidesByCellCount(const CellBoard& board) {
  std::map<int, int> cellsOfSide;
  for (int c = 1; c <= board.cells(); ++c) {
    for (int side : board.sides(c)) ++cellsOfSide[side];
  }
  std::map<int, int> count;
  for (auto [side, cells] : cellsOfSide) ++count[cells];
  return count;
}

TEST(ZorvexExpert, SquaresAndCubesAreCellsOfTheirSides) {
  Tables t = settables();
  CellBoard squares = squaresAsCells(t);
  ASSERT_EQ(squares.cells(), kSquares);
  for (int s = 1; s <= kSquares; ++s) EXPECT_EQ(squares.sideCount(s), 4) << s;
  // Along the cube's edges, across its faces, inside it.
  EXPECT_EQ(sidesByCellCount(squares), (std::map<int, int>{{2, 24}, {3, 24}, {4, 6}}));

  CellBoard cubes = cubesAsCells(t);
  ASSERT_EQ(cubes.cells(), kCubes);
  for (int c = 1; c <= kCubes; ++c) EXPECT_EQ(cubes.sideCount(c), 6) << c;
  EXPECT_EQ(sidesByCellCount(cubes), (std::map<int, int>{{1, 24}, {2, 12}}));
}

ExpertLines viewOf(const CellBoard& board, const std::set<int>& free) {
  return expertLines(
      board, [](int) { return true; }, [&free](int side) { return free.count(side) == 0; });
}

// Every square claimed but 1 (outside, in cube 1 alone) and 17 (between
// cubes 1 and 2): 17 completes cube 2 and leaves cube 1 to take as well,
// while 1 would hand both cubes over.
TEST(ZorvexExpert, TheSharedSquareIsClaimedFirst) {
  ExpertLines view = viewOf(cubesAsCells(settables()), {1, 17});
  EXPECT_EQ(view.bestLine(expert::Budget{100000}), 17);
  EXPECT_EQ(expert::exactLineValue(view.problem), 2);
}

// The inner line 41 is the last side of the four squares round it.
TEST(ZorvexExpert, AnInnerLineCompletesFourSquares) {
  ExpertLines view = viewOf(squaresAsCells(settables()), {41});
  EXPECT_EQ(view.bestLine(expert::Budget{1000}), 41);
  EXPECT_EQ(expert::exactLineValue(view.problem), 4);
}

}  // namespace
}  // namespace vrask::cube
