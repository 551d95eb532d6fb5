// The triangular computer's decisions that shape its play.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/triangular/computer.h"

namespace vrask::triangular {
namespace {

TEST(TriangularComputer, LineBrainClosesLowestCellFirstAndAvoidsSecondSides) {
  CellLines celllines = start();
  SideMarks sidemark{};
  LineValues lineowner{};
  auto take = [&](int line) {
    lineowner[line] = 2;
    for (int cell : cellsOf(celllines, line)) {
      for (int k = 0; k < 3; ++k) {
        if (celllines[cell][k] == line) sidemark[cell][k] = 2;
      }
    }
  };
  auto everywhere = [](int) { return true; };

  take(4);  // a side of cells 1 (32, 4, 31) and 9 (4, 41, 40)
  CellCounts sidecount = countMarkedSides(sidemark);
  EXPECT_TRUE(cellsToClose(sidecount).empty());
  std::vector<int> safe = lineCandidates(celllines, sidecount, lineowner, everywhere);
  for (int line : {4, 31, 32, 40, 41}) EXPECT_EQ(std::count(safe.begin(), safe.end(), line), 0);
  EXPECT_EQ(safe.front(), 1);

  take(40);
  take(31);
  sidecount = countMarkedSides(sidemark);
  EXPECT_EQ(cellsToClose(sidecount), (std::vector<int>{1, 9}));

  // When every free line gives some cell a second side, all free lines are in.
  auto onlyTheseShow = [](int line) { return line == 1 || line == 2; };
  SideMarks none{};
  LineValues free{};
  CellCounts oneEach = countMarkedSides(none);
  oneEach[2] = 1;  // cell 2 holds line 1
  oneEach[4] = 1;  // cell 4 holds line 2
  EXPECT_EQ(lineCandidates(celllines, oneEach, free, onlyTheseShow), (std::vector<int>{1, 2}));
}

TEST(TriangularComputer, CircleBrainPlaysTheFreeCellWithMostDrawnLines) {
  CellCounts linecount{}, celltaken{};
  auto everywhere = [](int) { return true; };
  EXPECT_EQ(redchackTarget(linecount, celltaken, everywhere), 0);
  linecount[30] = 1;
  linecount[20] = 2;
  linecount[12] = 2;
  EXPECT_EQ(redchackTarget(linecount, celltaken, everywhere), 12);
  linecount[40] = 3;
  celltaken[40] = 1;  // closed cells are out
  EXPECT_EQ(redchackTarget(linecount, celltaken, everywhere), 12);
  EXPECT_EQ(redchackTarget(linecount, celltaken, [](int cell) { return cell != 12; }), 20);
  EXPECT_EQ(freeCells(celltaken, [](int cell) { return cell <= 41; }).size(), 40u);
}

}  // namespace
}  // namespace vrask::triangular
