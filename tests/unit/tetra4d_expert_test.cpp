// The 4D board's line game as the expert sees it must finish the same
// triangles as the board's own rules, on one cube and on two.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "boards/tetra4d/expert_view.h"

namespace vrask::tetra4d {
namespace {

// How many cells taking `line` makes whole.
int cellsCompleted(const LinePosition& position, int line) {
  return static_cast<int>(std::count_if(
      position.cells.begin(), position.cells.end(), [&position, line](const auto& cell) {
        return std::find(cell.begin(), cell.end(), line) != cell.end() &&
               std::all_of(cell.begin(), cell.end(),
                           [&position, line](int l) { return l == line || position.isTaken(l); });
      }));
}

// Whole games in random order: before each line the expert's view says how
// many triangles it finishes, and the board's judging agrees.
void expectTheViewFinishesWhatTheBoardDoes(int level) {
  std::mt19937 random(level);
  for (int game = 0; game < 20; ++game) {
    Board board;
    board.level = level;
    board.lnstate = freshLines(level);
    std::vector<int> order = freeLines(board);
    std::shuffle(order.begin(), order.end(), random);
    int finished = 0;
    for (int slot : order) {
      LinePosition position = linePosition(board);
      int expected = cellsCompleted(position, slot);
      EXPECT_EQ(position.completes(slot), expected > 0);
      board.lnstate.at(static_cast<size_t>(slot)) = kBlue;
      int scored = static_cast<int>(griddle(board, slot, kBlue).size());
      ASSERT_EQ(scored, expected) << "level " << level << " slot " << slot;
      finished += scored;
    }
    EXPECT_EQ(finished, kTriangles);
  }
}

TEST(Tetra4dExpert, OneCubeFinishesTheTrianglesTheBoardScores) {
  expectTheViewFinishesWhatTheBoardDoes(kSingleCube);
  Board board;
  LinePosition position = linePosition(board);
  // Every triangle is three lines; the second cube's slots are in none.
  for (const auto& cell : position.cells) EXPECT_EQ(cell.size(), 3U);
  for (const auto& cell : position.cells) {
    EXPECT_TRUE(std::none_of(cell.begin(), cell.end(), [](int l) { return isSecondCube(l); }));
  }
}

// On two cubes a triangle of apex 3 needs both like-named edges: fronttop's
// triangle 13 is both fronttops and its two spokes.
TEST(Tetra4dExpert, TwoCubesGiveTheMiddleTrianglesBothEdges) {
  expectTheViewFinishesWhatTheBoardDoes(kDualCube);
  Board board;
  board.level = kDualCube;
  board.lnstate = freshLines(kDualCube);
  LinePosition position = linePosition(board);
  std::vector<int> middle = position.cells.at(12);
  std::sort(middle.begin(), middle.end());
  EXPECT_EQ(middle,
            (std::vector<int>{cubeSlot(1, 4), cubeSlot(2, 4), spokeSlot(3, 0), spokeSlot(3, 3)}));
  std::vector<int> onSecond = position.cells.at(24);
  EXPECT_EQ(std::count(onSecond.begin(), onSecond.end(), cubeSlot(2, 4)), 1);
  EXPECT_EQ(std::count(onSecond.begin(), onSecond.end(), cubeSlot(1, 4)), 0);
}

}  // namespace
}  // namespace vrask::tetra4d
