// The square board's tables against the board's numbering, worked out here
// from rows and columns, not from the tables' own rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "boards/flatland/tables.h"

namespace vrask::flatland {
namespace {

// Side k of the square at (r, c): top, right, bottom, left.
int sideLine(int r, int c, int k) {
  switch (k) {
    case Top:
      return 90 + (r - 1) * 9 + c;
    case Right:
      return c * 9 + r;
    case Bottom:
      return 99 + (r - 1) * 9 + c;
    default:
      return (c - 1) * 9 + r;
  }
}

std::set<int> asSet(const std::vector<int>& v) {
  return {v.begin(), v.end()};
}

TEST(FlatlandTables, SideTableFollowsTheNumberingOfRowsAndColumns) {
  SideTable sqline = start();
  std::map<int, int> uses;
  for (int r = 1; r <= 9; ++r) {
    for (int c = 1; c <= 9; ++c) {
      for (int k = Top; k <= Left; ++k) {
        int line = sqline[(r - 1) * 9 + c][k];
        EXPECT_EQ(line, sideLine(r, c, k)) << "square " << (r - 1) * 9 + c << " side " << k;
        ++uses[line];
      }
    }
  }
  EXPECT_EQ((std::array<int, 5>{0, 91, 10, 100, 1}), sqline[1]);
  EXPECT_EQ((std::array<int, 5>{0, 171, 90, 180, 81}), sqline[81]);
  // Every line bounds one square on the edge of the board and two inside it.
  ASSERT_EQ(uses.size(), 180U);
  for (auto [line, count] : uses) {
    bool edge = line <= 9 || (line >= 82 && line <= 99) || line >= 172;
    EXPECT_EQ(count, edge ? 1 : 2) << "line " << line;
  }
}

TEST(FlatlandTables, TwinsPairOppositeEdgesOfTheSameRowOrColumn) {
  SideTable sqline = start();
  std::set<std::pair<int, int>> pairs;
  for (int line = 1; line <= kLines; ++line) {
    int twin = twinOf(line);
    if (twin == 0) continue;
    EXPECT_EQ(twinOf(twin), line);
    pairs.insert(std::minmax(line, twin));
  }
  EXPECT_EQ(pairs.size(), 18U);
  for (int i = 1; i <= 9; ++i) {
    // Left side of row i's first square with the right side of its last;
    // top of column i's first square with the bottom of its last.
    EXPECT_EQ(twinOf(sqline[(i - 1) * 9 + 1][Left]), sqline[(i - 1) * 9 + 9][Right]);
    EXPECT_EQ(twinOf(sqline[i][Top]), sqline[72 + i][Bottom]);
  }
  EXPECT_EQ(twinOf(41), 0);
  EXPECT_EQ(twinOf(100), 0);
}

TEST(FlatlandTables, NeighboursStopAtTheEdgeOfFlatlandAndWrapInBubbleland) {
  EXPECT_EQ(neighbour(1, Direction::Left, false), 0);
  EXPECT_EQ(neighbour(1, Direction::Up, false), 0);
  EXPECT_EQ(neighbour(1, Direction::Left, true), 9);
  EXPECT_EQ(neighbour(1, Direction::Up, true), 73);
  EXPECT_EQ(neighbour(81, Direction::Right, true), 73);
  EXPECT_EQ(neighbour(81, Direction::Down, true), 9);
  EXPECT_EQ(neighbour(41, Direction::Up, false), 32);
  EXPECT_EQ(neighbour(41, Direction::Right, false), 42);
  // On the torus every step can be undone; in Flatland every step that
  // exists can.
  const std::map<Direction, Direction> back{{Direction::Up, Direction::Down},
                                            {Direction::Down, Direction::Up},
                                            {Direction::Left, Direction::Right},
                                            {Direction::Right, Direction::Left}};
  for (bool bubbleland : {false, true}) {
    for (int s = 1; s <= kSquares; ++s) {
      for (Direction d : kDirections) {
        int next = neighbour(s, d, bubbleland);
        int r = (s - 1) / 9 + 1;
        int c = (s - 1) % 9 + 1;
        bool leaves = (d == Direction::Up && r == 1) || (d == Direction::Down && r == 9) ||
                      (d == Direction::Left && c == 1) || (d == Direction::Right && c == 9);
        EXPECT_EQ(next == 0, leaves && !bubbleland) << s;
        if (next != 0) {
          EXPECT_EQ(neighbour(next, back.at(d), bubbleland), s);
        }
      }
    }
  }
}

TEST(FlatlandTables, PatternsPaintFewerLinesAtTheCornerAndTheEdgeOfFlatland) {
  SideTable sqline = start();
  struct Count {
    int mode, corner, edge, middle;
  };
  for (Count c : {Count{Vrask, 4, 4, 4}, Count{SuperVrask, 8, 10, 12},
                  Count{SuperVraskPlus, 10, 13, 16}, Count{Ribbon, 36, 36, 36}}) {
    SCOPED_TRACE(c.mode);
    EXPECT_EQ(vraskPattern(sqline, c.mode, 1, false).size(), static_cast<size_t>(c.corner));
    EXPECT_EQ(vraskPattern(sqline, c.mode, 2, false).size(), static_cast<size_t>(c.edge));
    EXPECT_EQ(vraskPattern(sqline, c.mode, 41, false).size(), static_cast<size_t>(c.middle));
  }
  // Super Vrask: the sides across the direction of each neighbour.
  EXPECT_EQ(asSet(vraskPattern(sqline, SuperVrask, 41, false)),
            (std::set<int>{40, 41, 42, 49, 50, 51, 130, 131, 132, 139, 140, 141}));
  // Ribbon: the rows of lines above and below row 5, the columns of lines
  // left and right of column 5.
  std::set<int> ribbon = asSet(vraskPattern(sqline, Ribbon, 41, false));
  for (int line = 127; line <= 144; ++line) EXPECT_TRUE(ribbon.count(line)) << line;
  for (int line = 37; line <= 54; ++line) EXPECT_TRUE(ribbon.count(line)) << line;
  // A hidden square beyond a small board is still a neighbour: square 5's
  // right neighbour 6 is painted whole.
  std::set<int> plus = asSet(vraskPattern(sqline, SuperVraskPlus, 5, false));
  for (int k = Top; k <= Left; ++k) EXPECT_TRUE(plus.count(sqline[6][k]));
}

TEST(FlatlandTables, BubblelandPatternsTakeTwinsOnlyWhereTheMoveMeetsTheSeam) {
  SideTable sqline = start();
  // Vrask: the square's own edge lines bring their twins.
  EXPECT_EQ(asSet(vraskPattern(sqline, Vrask, 1, true)), (std::set<int>{91, 10, 100, 1, 172, 82}));
  EXPECT_EQ(vraskPattern(sqline, Vrask, 41, true).size(), 4U);
  // Row 2: the top line of the square above, not its twin.
  std::set<int> row2 = asSet(vraskPattern(sqline, SuperVraskPlus, 11, true));
  EXPECT_TRUE(row2.count(92));
  EXPECT_FALSE(row2.count(173));
  // Row 1, not a corner: the neighbours' top edge lines bring their twins.
  std::set<int> row1 = asSet(vraskPattern(sqline, SuperVraskPlus, 5, true));
  for (int line : {167, 175, 176, 177, 94, 96}) EXPECT_TRUE(row1.count(line)) << line;
  EXPECT_FALSE(row1.count(174));
  // Column 1, not a corner: the neighbours' left edge lines bring theirs.
  std::set<int> column1 = asSet(vraskPattern(sqline, SuperVraskPlus, 37, true));
  for (int line : {4, 85, 6, 87, 5, 86}) EXPECT_TRUE(column1.count(line)) << line;
  // A corner: its own twins, none of its neighbours'.
  std::set<int> corner = asSet(vraskPattern(sqline, SuperVraskPlus, 81, true));
  EXPECT_EQ(corner.size(), 18U);
  for (int line : {9, 99}) EXPECT_TRUE(corner.count(line)) << line;
  for (int line : {98, 91, 1}) EXPECT_FALSE(corner.count(line)) << line;
}

TEST(FlatlandTables, ASmallerBoardHidesAllButItsTopLeftBlock) {
  SideTable sqline = start();
  for (int n = 5; n <= 9; ++n) {
    SCOPED_TRACE(n);
    Hidden hidden = hiddenBySize(n);
    std::set<int> hiddenSquares = asSet(hidden.squares);
    std::set<int> hiddenLines = asSet(hidden.lines);
    std::set<int> blockLines;
    for (int s = 1; s <= kSquares; ++s) {
      bool inBlock = rowOf(s) <= n && columnOf(s) <= n;
      EXPECT_EQ(hiddenSquares.count(s) == 0, inBlock) << "square " << s;
      if (!inBlock) continue;
      for (int k = Top; k <= Left; ++k) blockLines.insert(sqline[s][k]);
    }
    EXPECT_EQ(blockLines.size(), static_cast<size_t>(lineCount(n)));
    EXPECT_EQ(kLines - hiddenLines.size(), static_cast<size_t>(2 * n * (n + 1)));
    for (int line = 1; line <= kLines; ++line) {
      EXPECT_EQ(hiddenLines.count(line) == 0, blockLines.count(line) == 1) << "line " << line;
    }
  }
  // Lines keep their numbers: the 5 by 5 board's right edge is 46..50.
  std::set<int> hidden5 = asSet(hiddenBySize(5).lines);
  for (int line : {46, 50, 136, 140}) EXPECT_FALSE(hidden5.count(line)) << line;
  for (int line : {51, 55, 60, 141, 145, 149}) EXPECT_TRUE(hidden5.count(line)) << line;
}

// The two points (on the torus, 0..8 each way) that line `line` joins.
std::pair<std::pair<int, int>, std::pair<int, int>> endsOf(int line) {
  if (line <= 90) {
    int x = (line - 1) / 9 % 9;
    int y = (line - 1) % 9;
    return {{x, y}, {x, (y + 1) % 9}};
  }
  int x = (line - 91) % 9;
  int y = (line - 91) / 9 % 9;
  return {{x, y}, {(x + 1) % 9, y}};
}

TEST(FlatlandTables, DesignColoursDifferWhereLinesMeetAndAgreeForTwins) {
  std::array<int, kLines + 1> colours = designColours();
  std::set<int> used;
  std::map<std::pair<int, int>, std::vector<int>> atPoint;
  for (int line = 1; line <= kLines; ++line) {
    int colour = colours[line];
    used.insert(colour);
    EXPECT_NE(colour, 16711680) << line;
    EXPECT_NE(colour, 255) << line;
    if (int twin = twinOf(line)) {
      EXPECT_EQ(colour, colours[twin]) << line;
    }
    if (twinOf(line) > line || twinOf(line) == 0) {
      auto [a, b] = endsOf(line);
      atPoint[a].push_back(line);
      atPoint[b].push_back(line);
    }
  }
  EXPECT_EQ(used, (std::set<int>{0x0040C0, 0x00C0C0, 0xC000C0, 0xC0C000, 0x00C000}));
  ASSERT_EQ(atPoint.size(), 81U);
  for (const auto& [point, lines] : atPoint) {
    ASSERT_EQ(lines.size(), 4U);
    std::set<int> colourSet;
    for (int line : lines) colourSet.insert(colours[line]);
    EXPECT_EQ(colourSet.size(), 4U) << "point " << point.first << "," << point.second;
  }
}

}  // namespace
}  // namespace vrask::flatland
