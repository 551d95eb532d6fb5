// The solid's line game as the expert sees it: the faces of the first size
// by their lines, one move a line.
#include <gtest/gtest.h>

#include "boards/quennel/tables.h"
#include "frame/expert_lines.h"

namespace vrask {
namespace {

// The first size with every line taken but those in `free`.
LinePosition firstSizeWithFree(std::initializer_list<int> free) {
  quennel::CellLines celllines = quennel::startgrids();
  LinePosition position;
  for (int f = 1; f <= quennel::facesOfSize(0); ++f) {
    position.cells.emplace_back(celllines[f].begin() + 1, celllines[f].end());
  }
  position.taken.assign(quennel::kLines + 1, false);
  for (int line = 1; line <= quennel::linesOfSize(0); ++line) position.taken[line] = true;
  for (int line : free) position.taken[line] = false;
  return position;
}

// Only the three lines from the apex are free: faces 1, 5 and 9 make a ring
// of three in which each line closes two faces. Whoever draws first gives
// all three away.
TEST(QuennelExpert, TheApexRingOfThreeGoesToTheSecondPlayer) {
  LinePosition position = firstSizeWithFree({1, 2, 3});
  std::vector<int> lineOfMove;
  expert::LineProblem problem = lineProblemOf(position, lineOfMove);
  EXPECT_EQ(problem.cells.size(), 20U);
  EXPECT_EQ(lineOfMove.size(), 24U);
  EXPECT_EQ(std::count(problem.taken.begin(), problem.taken.end(), false), 3);
  EXPECT_EQ(expert::exactLineValue(problem), -3);
  EXPECT_FALSE(position.completes(1));
  int line = expertLineOf(position, expert::Budget{100000});
  EXPECT_TRUE(line >= 1 && line <= 3) << line;
}

// Lines 4, 5 and 6, the base of the top tetrahedron, are free: each closes
// two faces at once (4 closes 1 and 3), and the last of them the base (13)
// too, so the mover takes all seven.
TEST(QuennelExpert, LinesThatCloseSeveralFacesAreTakenInARow) {
  LinePosition position = firstSizeWithFree({4, 5, 6});
  EXPECT_TRUE(position.completes(4));
  std::vector<int> lineOfMove;
  EXPECT_EQ(expert::exactLineValue(lineProblemOf(position, lineOfMove)), 7);
  position.taken[4] = position.taken[5] = position.taken[6] = true;
  EXPECT_EQ(expertLineOf(position, expert::Budget{1000}), 0);
}

}  // namespace
}  // namespace vrask
