// The computer's choices on the wall: most drawn lines first, lowest number
// among equals, never a taken square or one off the wall.
#include <gtest/gtest.h>

#include <map>

#include "boards/wall/computer.h"

namespace vrask::wall {
namespace {

TEST(WallComputer, TakesTheLowestFreeSquareWithTheMostDrawnLines) {
  std::map<int, int> drawn{{3, 2}, {9, 3}, {12, 4}, {20, 4}, {40, 1}};
  auto lines = [&](int s) { return drawn.count(s) != 0 ? drawn[s] : 0; };
  auto everywhere = [](int) { return true; };
  SquareMarks squaretaken{};
  EXPECT_EQ(computerTarget(squaretaken, lines, everywhere), 12);
  squaretaken[12] = 255;  // taken: the next with four
  EXPECT_EQ(computerTarget(squaretaken, lines, everywhere), 20);
  // Off the wall counts as not there: three lines then.
  EXPECT_EQ(computerTarget(squaretaken, lines, [](int s) { return s != 20; }), 9);
  squaretaken[9] = 2;  // dead
  EXPECT_EQ(computerTarget(squaretaken, lines, [](int s) { return s != 20; }), 3);
  // Nothing drawn anywhere: no move.
  EXPECT_EQ(computerTarget(
                SquareMarks{}, [](int) { return 0; }, everywhere),
            0);
}

TEST(WallComputer, OpensOnTheFirstNumberDrawnThatIsOnTheWall) {
  std::vector<int> draws{4, 9, 110, 6};
  size_t next = 0;
  std::vector<int> asked;
  auto pick = [&](int n) {
    asked.push_back(n);
    return draws.at(next++);
  };
  EXPECT_EQ(openingSquare(pick, [](int s) { return onWall(s, 1); }), 6);
  EXPECT_EQ(asked, (std::vector<int>{110, 110, 110, 110}));
}

}  // namespace
}  // namespace vrask::wall
