// The HyperCube board's line games as the expert sees them.
#include <gtest/gtest.h>

#include "boards/hypercube/expert_view.h"

namespace vrask::hypercube {
namespace {

// Line index 0 stands in slot 80. Left as the only free line, it is the last
// side of four squares: Blue's back and top faces and a connecting square on
// either side of the Blue cube.
TEST(HypercubeExpert, TheLastFreeLineIsIndexZeroAndFinishesFourSquares) {
  SideTable sqln = startr();
  LineValues lnown{};
  lnown.fill(1);
  lnown.at(kLines) = 0;
  expert::LineProblem problem = lineProblem(sqln, lnown);
  ASSERT_EQ(problem.cells.size(), static_cast<size_t>(kSquares));
  ASSERT_EQ(problem.moves.size(), static_cast<size_t>(kLines));
  EXPECT_EQ(expert::exactLineValue(problem), 4);
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{1000}), kLines);

  lnown.at(kLines) = 2;
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{1000}), 0);
}

// Blue's back face (slots 80, 4, 6, 5) with three sides drawn and nothing
// else: the fourth side is free to take, and taking it gives nothing away,
// since the player moves again.
TEST(HypercubeExpert, TakesASquareThatCostsNothing) {
  SideTable sqln = startr();
  LineValues lnown{};
  for (int slot : {80, 4, 6}) lnown.at(slot) = 2;
  EXPECT_EQ(expertLine(sqln, lnown, expert::Budget{20000}), 5);
}

}  // namespace
}  // namespace vrask::hypercube
