// The solid's line game as the expert sees it: the faces of the first size
// by their lines, one move a line.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/quennel/expert_view.h"

namespace vrask::quennel {
namespace {

// The first size with every line taken but those in `free`.
ExpertLines firstSizeWithFree(std::initializer_list<int> free) {
  LineValues linetaken{};
  for (int line = 1; line <= linesOfSize(0); ++line) linetaken[line] = 1;
  for (int line : free) linetaken[line] = 0;
  return expertLinesOf(startgrids(), linetaken, facesOfSize(0));
}

// Only the three lines from the apex are free: faces 1, 5 and 9 make a ring
// of three in which each line closes two faces. Whoever draws first gives
// all three away.
TEST(QuennelExpert, TheApexRingOfThreeGoesToTheSecondPlayer) {
  ExpertLines view = firstSizeWithFree({1, 2, 3});
  EXPECT_EQ(view.problem.cells.size(), 20U);
  EXPECT_EQ(view.lineOfMove.size(), 24U);
  EXPECT_EQ(std::count(view.problem.taken.begin(), view.problem.taken.end(), false), 3);
  EXPECT_EQ(expert::exactLineValue(view.problem), -3);
  int line = view.bestLine(expert::Budget{100000});
  EXPECT_TRUE(line >= 1 && line <= 3) << line;
}

// Lines 4, 5 and 6, the base of the top tetrahedron, are free: each closes
// two faces at once (4 closes 1 and 3), and the last of them the base (13)
// too, so the mover takes all seven.
TEST(QuennelExpert, LinesThatCloseSeveralFacesAreTakenInARow) {
  EXPECT_EQ(expert::exactLineValue(firstSizeWithFree({4, 5, 6}).problem), 7);
  EXPECT_EQ(firstSizeWithFree({}).bestLine(expert::Budget{1000}), 0);
}

// The second size's faces and lines join in only when it is chosen.
TEST(QuennelExpert, TheSizeChoosesTheFacesAndLines) {
  LineValues linetaken{};
  ExpertLines full = expertLinesOf(startgrids(), linetaken, facesOfSize(1));
  EXPECT_EQ(full.problem.cells.size(), 36U);
  EXPECT_EQ(full.lineOfMove.size(), 39U);
}

}  // namespace
}  // namespace vrask::quennel
