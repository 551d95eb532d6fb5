// The computer's decisions on the square board, on boards set up by hand.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/flatland/computer.h"

namespace vrask::flatland {
namespace {

bool everywhere(int) {
  return true;
}

TEST(FlatlandComputer, LineGameAvoidsThirdSidesUntilEveryFreeLineGivesOne) {
  SideTable sqline = start();
  LineOwners lineown{};
  SideOwners sqowner{};
  auto take = [&](int line) {
    lineown[line] = 2;
    for (int s = 1; s <= kSquares; ++s) {
      for (int k = Top; k <= Left; ++k) {
        if (sqline[s][k] == line) sqowner[s][k] = 2;
      }
    }
  };
  // Square 1 has two sides (91, 1): its other two, 10 and 100, are unsafe.
  take(91);
  take(1);
  SquareCounts sidecount = countOwnedSides(sqowner);
  EXPECT_TRUE(squaresToComplete(sidecount).empty());
  std::vector<int> safe = lineCandidates(sqline, sidecount, lineown, everywhere);
  EXPECT_EQ(safe.size(), 176U);
  EXPECT_TRUE(std::is_sorted(safe.begin(), safe.end()));
  for (int line : {1, 91, 10, 100}) EXPECT_EQ(std::count(safe.begin(), safe.end(), line), 0);
  // Hidden lines are never candidates.
  auto smallBoard = [](int line) { return line != 2; };
  EXPECT_EQ(lineCandidates(sqline, sidecount, lineown, smallBoard).size(), 175U);

  // With a third side square 1 is to be completed, lowest square first.
  take(10);
  take(37);
  take(46);
  take(95);
  sidecount = countOwnedSides(sqowner);
  EXPECT_EQ(squaresToComplete(sidecount), (std::vector<int>{1, 5}));

  // When every free line is unsafe, all free lines are offered.
  LineOwners full{};
  full.fill(2);
  full[100] = 0;
  full[101] = 0;
  SquareCounts twoSides{};
  twoSides[1] = 2;
  twoSides[2] = 2;
  EXPECT_EQ(lineCandidates(sqline, twoSides, full, everywhere), (std::vector<int>{100, 101}));
}

TEST(FlatlandComputer, VraskPrefersMixedSquaresThenThreeSidesThenTwo) {
  SquareCounts sidecount{};
  SquareCounts sqdone{};
  sidecount[5] = 2;
  sidecount[30] = 3;
  sidecount[50] = 4;
  sqdone[50] = 1;  // whole in one colour once: closed, not a target
  EXPECT_EQ(vraskTarget(sidecount, sqdone, everywhere), 30);
  sidecount[60] = 4;  // four marked lines and an open circle: mixed colours
  EXPECT_EQ(vraskTarget(sidecount, sqdone, everywhere), 60);
  auto hides60And30 = [](int s) { return s != 60 && s != 30; };
  EXPECT_EQ(vraskTarget(sidecount, sqdone, hides60And30), 5);
  EXPECT_EQ(vraskTarget(SquareCounts{}, sqdone, everywhere), 0);

  std::vector<int> open = openSquares(sqdone, [](int s) { return s <= 3 || s == 50; });
  EXPECT_EQ(open, (std::vector<int>{1, 2, 3}));
}

}  // namespace
}  // namespace vrask::flatland
