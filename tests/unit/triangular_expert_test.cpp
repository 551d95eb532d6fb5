// The triangular board as the expert sees it: the triangles that show, and a
// rim line and its Bubbleland twin as one move.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "boards/triangular/tables.h"
#include "frame/expert_lines.h"

namespace vrask::triangular {
namespace {

ExpertLines viewOf(const std::set<int>& free, bool bubbleland, int size = kNormalSize) {
  static const CellBoard cells = cellBoard(start());
  std::vector<int> hidden = hiddenBySize(size).cells;
  return expertLines(
      cells,
      [hidden](int cell) { return std::find(hidden.begin(), hidden.end(), cell) == hidden.end(); },
      [&free](int line) { return free.count(line) == 0; },
      bubbleland ? std::function<int(int)>(twinOf) : nullptr);
}

std::set<int> allLines() {
  std::set<int> lines;
  for (int line = 1; line <= kLines; ++line) lines.insert(line);
  return lines;
}

TEST(TriangularExpert, TwinsAreOneMoveAndHiddenCellsAreOutOfPlay) {
  ExpertLines flat = viewOf(allLines(), false);
  EXPECT_EQ(flat.problem.cells.size(), 54U);
  EXPECT_EQ(flat.problem.moves.size(), 90U);

  ExpertLines torus = viewOf(allLines(), true);
  EXPECT_EQ(torus.problem.moves.size(), 81U);
  auto pair = std::find(torus.lineOfMove.begin(), torus.lineOfMove.end(), 1);
  ASSERT_NE(pair, torus.lineOfMove.end());
  EXPECT_EQ(torus.problem.moves.at(static_cast<size_t>(pair - torus.lineOfMove.begin())),
            (std::vector<int>{1, 28}));
  EXPECT_EQ(std::count(torus.lineOfMove.begin(), torus.lineOfMove.end(), 28), 0);

  ExpertLines mini = viewOf(allLines(), false, 1);
  EXPECT_EQ(mini.problem.cells.size(), 24U);
  EXPECT_EQ(mini.problem.moves.size(), 42U);
}

// Free: the rim lines 31 and 1 and line 32 between them, which leave cells 1
// (32, 4, 31) and 2 (1, 33, 32) a chain of two. On the flat board whoever
// moves must open it and loses both; joined, 31 and 1 are also the last
// sides of cells 38 and 49 across the rim, so the mover takes all four.
TEST(TriangularExpert, ARimChainCrossesTheSeamInBubbleland) {
  ExpertLines flat = viewOf({1, 31, 32}, false);
  EXPECT_EQ(expert::exactLineValue(flat.problem), -2);

  ExpertLines torus = viewOf({1, 28, 31, 72, 32}, true);
  EXPECT_EQ(expert::exactLineValue(torus.problem), 4);
  int line = torus.bestLine(expert::Budget{100000});
  EXPECT_TRUE(line == 1 || line == 31) << line;
}

}  // namespace
}  // namespace vrask::triangular
