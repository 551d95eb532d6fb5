// The 4D board's line game as the expert sees it must finish the same
// triangles as the board's own rules, on one cube and on two.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "boards/tetra4d/expert_view.h"

namespace vrask::tetra4d {
namespace {

// How many triangles taking `slot` finishes, by the expert's cells.
int cellsCompleted(const CellBoard& cells, const Board& board, int slot) {
  int whole = 0;
  for (int t = 1; t <= cells.cells(); ++t) {
    const std::vector<int>& lines = cells.sides(t);
    bool holds = std::find(lines.begin(), lines.end(), slot) != lines.end();
    whole += holds && std::all_of(lines.begin(), lines.end(),
                                  [&board, slot](int l) {
                                    return l == slot ||
                                           board.lnstate.at(static_cast<size_t>(l)) != kFree;
                                  })
                 ? 1
                 : 0;
  }
  return whole;
}

// Whole games in random order: before each line the expert's cells say how
// many triangles it finishes, and the board's judging agrees.
void expectTheViewFinishesWhatTheBoardDoes(int level) {
  CellBoard cells = triangleCells(level);
  std::mt19937 random(level);
  for (int game = 0; game < 20; ++game) {
    Board board;
    board.level = level;
    board.lnstate = freshLines(level);
    std::vector<int> order = freeLines(board);
    std::shuffle(order.begin(), order.end(), random);
    int finished = 0;
    for (int slot : order) {
      int expected = cellsCompleted(cells, board, slot);
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
  // Every triangle is three lines; the second cube's slots are in none, and
  // so are no moves of the expert's.
  CellBoard cells = triangleCells(kSingleCube);
  for (int t = 1; t <= kTriangles; ++t) {
    const std::vector<int>& lines = cells.sides(t);
    EXPECT_EQ(lines.size(), 3U);
    EXPECT_TRUE(std::none_of(lines.begin(), lines.end(), [](int l) { return isSecondCube(l); }));
  }
  Board board;
  board.lnstate = freshLines(kSingleCube);
  EXPECT_EQ(expertLinesOf(board).lineOfMove.size(), 36U);
}

// On two cubes a triangle of apex 3 needs both like-named edges: fronttop's
// triangle 13 is both fronttops and its two spokes; triangle 25 stands on
// the second cube's fronttop alone.
TEST(Tetra4dExpert, TwoCubesGiveTheMiddleTrianglesBothEdges) {
  expectTheViewFinishesWhatTheBoardDoes(kDualCube);
  CellBoard cells = triangleCells(kDualCube);
  std::vector<int> middle = cells.sides(13);
  std::sort(middle.begin(), middle.end());
  EXPECT_EQ(middle,
            (std::vector<int>{cubeSlot(1, 4), cubeSlot(2, 4), spokeSlot(3, 0), spokeSlot(3, 3)}));
  const std::vector<int>& onSecond = cells.sides(25);
  EXPECT_EQ(std::count(onSecond.begin(), onSecond.end(), cubeSlot(2, 4)), 1);
  EXPECT_EQ(std::count(onSecond.begin(), onSecond.end(), cubeSlot(1, 4)), 0);
  Board board;
  board.level = kDualCube;
  board.lnstate = freshLines(kDualCube);
  EXPECT_EQ(expertLinesOf(board).lineOfMove.size(), 48U);
}

}  // namespace
}  // namespace vrask::tetra4d
