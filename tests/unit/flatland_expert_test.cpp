#include <gtest/gtest.h>

#include <algorithm>
#include <set>

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

// The 5 by 5 board in play is turned and mirrored seven ways, each taking
// every square's four lines onto another square's; Bubbleland is not.
TEST(FlatlandExpert, TheFlatBoardInPlayIsTurnedAndMirrored) {
  SideTable sqline = start();
  LineOwners lineown{};
  auto five = [](int s) { return rowOf(s) <= 5 && columnOf(s) <= 5; };
  std::vector<int> lineOfMove;
  expert::LineProblem p = lineProblem(sqline, lineown, five, false, lineOfMove);
  ASSERT_EQ(p.moves.size(), 60U);
  ASSERT_EQ(p.symmetries.size(), 7U);
  std::set<std::vector<int>> cells;
  for (auto cell : p.cells) {
    std::sort(cell.begin(), cell.end());
    cells.insert(cell);
  }
  std::set<std::vector<int>> images;
  for (const auto& image : p.symmetries) {
    std::vector<int> turned;
    for (const auto& cell : p.cells) {
      std::vector<int> onto;
      for (int line : cell) {
        int m = static_cast<int>(std::find(lineOfMove.begin(), lineOfMove.end(), line) -
                                 lineOfMove.begin());
        onto.push_back(lineOfMove.at(static_cast<size_t>(image.at(static_cast<size_t>(m)))));
      }
      std::sort(onto.begin(), onto.end());
      EXPECT_TRUE(cells.count(onto) == 1);
      turned.push_back(onto.front());
    }
    images.insert(turned);
  }
  EXPECT_EQ(images.size(), 7U) << "two symmetries are the same";

  auto all = [](int) { return true; };
  EXPECT_TRUE(lineProblem(sqline, lineown, all, true, lineOfMove).symmetries.empty());
  EXPECT_EQ(lineProblem(sqline, lineown, all, false, lineOfMove).symmetries.size(), 7U);
}

}  // namespace
}  // namespace vrask::flatland
