// The rules boards share, over the square board's table and over a small
// board of triangles, where the computer's picks are not reached by a script.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/flatland/computer.h"
#include "frame/cell_board.h"

namespace vrask {
namespace {

bool everywhere(int) {
  return true;
}

TEST(CellBoard, SafeLinesAreFreeLinesOnTheBoardGivingNoCellItsLastSideButOne) {
  using namespace flatland;
  CellBoard board = cellBoard(start());
  LineOwners lineown{};
  lineown[91] = lineown[1] = 2;
  Counts sidecount(kSquares + 1, 0);
  sidecount[1] = 2;  // 10 and 100 would give square 1 a third side
  auto isFree = [&](int line) { return lineown.at(static_cast<size_t>(line)) == 0 && line != 2; };
  std::vector<int> safe = board.safeLines(sidecount, isFree);
  EXPECT_EQ(safe.size(), 175U);
  for (int line : {1, 2, 10, 91, 100}) EXPECT_EQ(std::count(safe.begin(), safe.end(), line), 0);
  lineown.fill(2);
  lineown[100] = lineown[101] = 0;
  sidecount[2] = 2;
  auto owned = [&](int line) { return lineown.at(static_cast<size_t>(line)) == 0; };
  EXPECT_EQ(board.safeLines(sidecount, owned), (std::vector<int>{100, 101}));
  SideOwners sqowner{};
  sqowner[1] = {0, 2, 1, 2, 0};
  EXPECT_EQ(std::pair(countOwnedSides(sqowner)[1], countOwnedSides(sqowner, 2)[1]),
            std::pair(3, 2));
}

TEST(CellBoard, VraskTargetPassesOverClosedAndHiddenCells) {
  using namespace flatland;
  CellBoard board = cellBoard(start());
  Counts sidecount(kSquares + 1, 0), sqdone(kSquares + 1, 0);
  sidecount[30] = 3;
  sidecount[50] = sidecount[60] = 4;
  sqdone[50] = 1;  // whole in one colour once: closed, though no longer whole
  EXPECT_EQ(board.vraskTarget(sidecount, sqdone, everywhere), 60);
  EXPECT_EQ(board.vraskTarget(sidecount, sqdone, [](int s) { return s != 60; }), 30);
  EXPECT_EQ(board.vraskTarget(Counts(kSquares + 1, 0), sqdone, everywhere), 0);
  EXPECT_EQ(board.openCells(sqdone, [](int s) { return s <= 3 || s == 50; }),
            (std::vector<int>{1, 2, 3}));
}

// Two triangles sharing line 3: a cell is short by its own number of sides.
TEST(CellBoard, CellsOfThreeSidesCountTheirOwnShortfall) {
  CellBoard board({{}, {1, 2, 3}, {3, 4, 5}}, 5);
  std::vector<bool> taken{false, true, true, false, false, false};
  Counts sidecount =
      board.countSides([&](int line) { return taken.at(static_cast<size_t>(line)); });
  EXPECT_EQ(sidecount, (Counts{0, 2, 0}));
  EXPECT_EQ(board.cellsToComplete(sidecount), (std::vector<int>{1}));
  auto isFree = [&](int line) { return !taken.at(static_cast<size_t>(line)); };
  // Line 3 would complete triangle 1; 4 and 5 give triangle 2 its first side.
  EXPECT_EQ(board.safeLines(sidecount, isFree), (std::vector<int>{3, 4, 5}));
  taken[4] = true;
  sidecount = board.countSides([&](int line) { return taken.at(static_cast<size_t>(line)); });
  EXPECT_EQ(board.safeLines(sidecount, isFree), (std::vector<int>{3, 5}));
  EXPECT_EQ(board.vraskTarget(sidecount, Counts{0, 0, 0}, everywhere), 1);
}

}  // namespace
}  // namespace vrask
