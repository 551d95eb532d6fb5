#include <gtest/gtest.h>

#include "boards/flatland/expert_view.h"

namespace vrask::flatland {
namespace {

// Every line of the 9 by 9 board taken but the left edge of row 1 (1, whose
// twin is 82) and the top edge of column 1 (91, twin 172). In Bubbleland
// squares 9, 1 and 73 are then one chain across both seams, open at both
// ends; on the flat board square 1 is apart from the other two.
TEST(FlatlandExpert, AChainAcrossBothSeamsIsTakenWhole) {
  SideTable sqline = start();
  LineOwners lineown{};
  lineown.fill(1);
  for (int free : {1, 82, 91, 172}) lineown.at(free) = 0;
  auto all = [](int) { return true; };
  std::vector<int> lineOfMove;

  expert::LineProblem torus = lineProblem(sqline, lineown, all, true, lineOfMove);
  EXPECT_EQ(expert::exactLineValue(torus), 3);
  int L = expertLine(sqline, lineown, all, true, expert::Budget{100000});
  EXPECT_TRUE(L == 1 || L == 91) << L;

  // Flat: squares 9 and 73 are taken, then square 1 must be given away.
  EXPECT_EQ(expert::exactLineValue(lineProblem(sqline, lineown, all, false, lineOfMove)), 1);
}

}  // namespace
}  // namespace vrask::flatland
