// The computer's decisions where the scripted games do not lead.
#include <gtest/gtest.h>

#include <algorithm>

#include "boards/flatland/computer.h"

namespace vrask::flatland {
namespace {

bool everywhere(int) {
  return true;
}

TEST(FlatlandComputer, LineGameOffersFreeLinesOnTheBoardAndThirdSidesOnlyWhenItMust) {
  SideTable sqline = start();
  LineOwners lineown{};
  lineown[91] = lineown[1] = 2;
  SquareCounts sidecount{};
  sidecount[1] = 2;  // 10 and 100 would give square 1 a third side
  auto shows = [](int line) { return line != 2; };
  std::vector<int> safe = lineCandidates(sqline, sidecount, lineown, shows);
  EXPECT_EQ(safe.size(), 175U);
  for (int line : {1, 2, 10, 91, 100}) EXPECT_EQ(std::count(safe.begin(), safe.end(), line), 0);
  lineown.fill(2);
  lineown[100] = lineown[101] = 0;
  sidecount[2] = 2;
  EXPECT_EQ(lineCandidates(sqline, sidecount, lineown, everywhere), (std::vector<int>{100, 101}));
  SideOwners sqowner{};
  sqowner[1] = {0, 2, 1, 2, 0};
  EXPECT_EQ(std::pair(countOwnedSides(sqowner)[1], countOwnedSides(sqowner, 2)[1]),
            std::pair(3, 2));
}

TEST(FlatlandComputer, VraskPassesOverClosedAndHiddenSquares) {
  SquareCounts sidecount{}, sqdone{};
  sidecount[30] = 3;
  sidecount[50] = sidecount[60] = 4;
  sqdone[50] = 1;  // whole in one colour once: closed, though no longer whole
  EXPECT_EQ(vraskTarget(sidecount, sqdone, everywhere), 60);
  EXPECT_EQ(vraskTarget(sidecount, sqdone, [](int s) { return s != 60; }), 30);
  EXPECT_EQ(vraskTarget(SquareCounts{}, sqdone, everywhere), 0);
  EXPECT_EQ(openSquares(sqdone, [](int s) { return s <= 3 || s == 50; }),
            (std::vector<int>{1, 2, 3}));
}

}  // namespace
}  // namespace vrask::flatland
