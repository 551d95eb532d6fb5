// The square board's tables against its numbering and properties counted here.
#include <gtest/gtest.h>

#include <set>

#include "boards/flatland/tables.h"

namespace vrask::flatland {
namespace {

TEST(FlatlandTables, SideTableFollowsTheNumberingOfRowsAndColumns) {
  SideTable sqline = start();
  EXPECT_EQ((std::array<int, 5>{0, 91, 10, 100, 1}), sqline[1]);
  EXPECT_EQ((std::array<int, 5>{0, 171, 90, 180, 81}), sqline[81]);
  for (int s = 1; s <= kSquares; ++s) {
    int r = (s - 1) / 9 + 1, c = (s - 1) % 9 + 1;
    EXPECT_EQ(sqline[s], (std::array<int, 5>{0, 90 + s, c * 9 + r, 99 + s, (c - 1) * 9 + r})) << s;
  }
}

TEST(FlatlandTables, TwinsJoinTheEndsOfRowsAndColumnsAndNeighboursShareASideOrItsTwin) {
  SideTable sqline = start();
  for (int i = 1; i <= 9; ++i) {  // the ends of row i and of column i
    EXPECT_EQ(twinOf(sqline[(i - 1) * 9 + 1][Left]), sqline[(i - 1) * 9 + 9][Right]);
    EXPECT_EQ(twinOf(sqline[i][Top]), sqline[72 + i][Bottom]);
  }
  // Side k faces kDirections[k - 1]; the neighbour there has the line as its
  // opposite side, or across the seam its twin. Flatland stops at edge lines.
  for (bool bubbleland : {false, true}) {
    for (int s = 1; s <= kSquares; ++s) {
      for (int k = Top; k <= Left; ++k) {
        int next = neighbour(s, kDirections[static_cast<size_t>(k - 1)], bubbleland);
        int side = sqline[s][k], twin = twinOf(side);
        EXPECT_EQ(next == 0, twin != 0 && !bubbleland) << s << " side " << k;
        if (next != 0) {
          EXPECT_EQ(sqline[next][(k + 1) % 4 + 1], twin != 0 ? twin : side) << s << " side " << k;
        }
      }
    }
  }
}

// How many lines a move paints at a corner, an edge and the middle of Flatland.
TEST(FlatlandTables, PatternsPaintFewerLinesAtTheEdgeOfFlatland) {
  SideTable sqline = start();
  const int kCounts[][4] = {{Vrask, 4, 4, 4},
                            {SuperVrask, 8, 10, 12},
                            {SuperVraskPlus, 10, 13, 16},
                            {Ribbon, 36, 36, 36}};
  for (auto [mode, corner, edge, middle] : kCounts) {
    EXPECT_EQ(vraskPattern(sqline, mode, 1, false).size(), static_cast<size_t>(corner)) << mode;
    EXPECT_EQ(vraskPattern(sqline, mode, 2, false).size(), static_cast<size_t>(edge)) << mode;
    EXPECT_EQ(vraskPattern(sqline, mode, 41, false).size(), static_cast<size_t>(middle)) << mode;
  }
}

TEST(FlatlandTables, ASmallerBoardHidesAllButItsTopLeftBlockWithoutRenumbering) {
  SideTable sqline = start();
  for (int n = 5; n <= 9; ++n) {
    Hidden hidden = hiddenBySize(n);
    std::set<int> squares(hidden.squares.begin(), hidden.squares.end());
    std::set<int> lines(hidden.lines.begin(), hidden.lines.end()), blockLines;
    for (int s = 1; s <= kSquares; ++s) {
      bool inBlock = rowOf(s) <= n && columnOf(s) <= n;
      EXPECT_EQ(squares.count(s) == 0, inBlock) << "size " << n << ", square " << s;
      for (int k = Top; k <= Left && inBlock; ++k) blockLines.insert(sqline[s][k]);
    }
    EXPECT_EQ(blockLines.size(), static_cast<size_t>(2 * n * (n + 1))) << n;
    for (int line = 1; line <= kLines; ++line) {
      EXPECT_EQ(lines.count(line) == 0, blockLines.count(line) == 1) << "size " << n << " " << line;
    }
  }
}

TEST(FlatlandTables, DesignColoursDifferWhereLinesMeetAndAgreeForTwins) {
  SideTable sqline = start();
  std::array<int, kLines + 1> colours = designColours();
  EXPECT_EQ(std::set<int>(colours.begin() + 1, colours.end()),
            (std::set<int>{0x0040C0, 0x00C0C0, 0xC000C0, 0xC0C000, 0x00C000}));
  for (int line = 1; line <= kLines; ++line) {
    EXPECT_TRUE(twinOf(line) == 0 || colours[line] == colours[twinOf(line)]) << line;
  }
  // The four lines at the top left corner of each square on the joined surface:
  // its top and left, the top of the square to its left, the left of the one above.
  for (int s = 1; s <= kSquares; ++s) {
    std::set<int> meeting{colours[sqline[s][Top]], colours[sqline[s][Left]],
                          colours[sqline[neighbour(s, Direction::Left, true)][Top]],
                          colours[sqline[neighbour(s, Direction::Up, true)][Left]]};
    EXPECT_EQ(meeting.size(), 4U) << "the top left corner of square " << s;
  }
}

}  // namespace
}  // namespace vrask::flatland
