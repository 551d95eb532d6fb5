// The wall's numbering against its printed rows, and its geometry: every
// square is a unit square of the lattice and every circle stands clear.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "boards/wall/layout.h"
#include "boards/wall/tables.h"

namespace vrask::wall {
namespace {

using Row = std::array<int, 5>;

TEST(WallTables, CellLinesFollowTheRowsOfEachKindOfSquare) {
  CellLines celllines = startwall();
  EXPECT_EQ((Row{0, 1, 97, 2, 102}), celllines[1]);
  EXPECT_EQ((Row{0, 95, 156, 96, 126}), celllines[80]);
  EXPECT_EQ((Row{0, 30, 90, 60, 96}), celllines[110]);
  for (int r = 0; r < 5; ++r) {
    for (int j = 0; j < 5; ++j) {
      EXPECT_EQ(celllines[5 * r + j + 1],
                (Row{0, 6 * r + j + 1, 97 + 5 * r + j, 6 * r + j + 2, 102 + 5 * r + j}));
      EXPECT_EQ(celllines[26 + 5 * r + j],
                (Row{0, 31 + 6 * r + j, 127 + 5 * r + j, 32 + 6 * r + j, 132 + 5 * r + j}));
    }
    for (int j = 0; j < 6; ++j) {
      EXPECT_EQ(celllines[81 + 6 * r + j],
                (Row{0, 1 + 6 * r + j, 61 + 6 * r + j, 31 + 6 * r + j, 67 + 6 * r + j}));
    }
  }
  for (int i = 0; i < 6; ++i) {
    for (int j = 0; j < 5; ++j) {
      EXPECT_EQ(celllines[51 + 5 * i + j],
                (Row{0, 61 + 6 * i + j, 127 + 5 * i + j, 62 + 6 * i + j, 97 + 5 * i + j}));
    }
  }
}

// Walking a square's four lines in slot order goes round one unit square of
// the lattice, and every line bounds two to four squares.
TEST(WallTables, EverySquareIsAUnitSquareOfTheLattice) {
  CellLines celllines = startwall();
  std::map<int, int> squaresOfLine;
  for (int s = 1; s <= kSquares; ++s) {
    std::map<std::tuple<int, int, int>, int> corners;
    for (int k = 1; k <= 4; ++k) {
      int line = celllines[s][k];
      ++squaresOfLine[line];
      auto ends = endsOf(line);
      int length = std::abs(ends[0].column - ends[1].column) +
                   std::abs(ends[0].level - ends[1].level) +
                   std::abs(ends[0].depth - ends[1].depth);
      EXPECT_EQ(length, 1) << line;
      for (const Corner& c : ends) ++corners[{c.column, c.level, c.depth}];
    }
    EXPECT_EQ(corners.size(), 4u) << s;
    for (auto [corner, count] : corners) EXPECT_EQ(count, 2) << s;
  }
  EXPECT_EQ(squaresOfLine.size(), static_cast<size_t>(kLines));
  for (auto [line, count] : squaresOfLine) {
    EXPECT_GE(count, 2) << line;
    EXPECT_LE(count, 4) << line;
  }
}

TEST(WallTables, NeighboursAreTheSquaresOfOneKindThatShareALine) {
  EXPECT_EQ(neighbours(1), (std::vector<int>{2, 6}));
  EXPECT_EQ(neighbours(7), (std::vector<int>{2, 6, 8, 12}));
  EXPECT_EQ(neighbours(51), (std::vector<int>{52}));
  EXPECT_EQ(neighbours(52), (std::vector<int>{51, 53}));
  EXPECT_EQ(neighbours(81), (std::vector<int>{87}));
  EXPECT_EQ(neighbours(87), (std::vector<int>{81, 93}));
  CellLines celllines = startwall();
  for (int s = 1; s <= kSquares; ++s) {
    std::vector<int> next = neighbours(s);
    EXPECT_TRUE(std::is_sorted(next.begin(), next.end())) << s;
    for (int t : next) {
      auto theirs = neighbours(t);
      EXPECT_NE(std::find(theirs.begin(), theirs.end(), s), theirs.end()) << s << " " << t;
      EXPECT_EQ(faceOf(t).kind, faceOf(s).kind);
      int shared = 0;
      for (int k = 1; k <= 4; ++k) {
        shared += static_cast<int>(
            std::count(celllines[t].begin() + 1, celllines[t].end(), celllines[s][k]));
      }
      EXPECT_EQ(shared, 1) << s << " " << t;
    }
  }
}

// The printed lists: runs of squares and single squares, in any order.
std::set<int> squaresOf(std::initializer_list<std::pair<int, int>> runs,
                        std::initializer_list<int> singles) {
  std::set<int> all(singles);
  for (auto [from, to] : runs) {
    for (int s = from; s <= to; ++s) all.insert(s);
  }
  return all;
}

TEST(WallTables, SmallerWallsLeaveOffThePrintedSquares) {
  std::set<int> bigger =
      squaresOf({{21, 25}, {46, 50}, {76, 80}, {105, 110}},
                {5, 10, 15, 20, 30, 35, 40, 45, 55, 60, 65, 70, 75, 86, 92, 98, 104});
  std::set<int> wall = squaresOf({{16, 20}, {41, 45}, {71, 75}, {99, 104}},
                                 {4, 9, 14, 29, 34, 39, 54, 59, 64, 69, 85, 91, 97, 103});
  wall.insert(bigger.begin(), bigger.end());
  auto hidden = [](int bd) {
    std::vector<int> list = hiddenSquares(bd);
    return std::set<int>(list.begin(), list.end());
  };
  EXPECT_EQ(hidden(1), wall);
  EXPECT_EQ(hidden(2), bigger);
  EXPECT_TRUE(hidden(3).empty());
  for (int bd = 1; bd <= kLevels; ++bd) {
    EXPECT_EQ(kSquares - static_cast<int>(hidden(bd).size()), wallsize(bd));
  }
  EXPECT_EQ(wallsize(1), 42);
  EXPECT_EQ(wallsize(2), 72);
}

double distanceToSegment(layout::Point p, Segment s) {
  double vx = s.x2 - s.x1, vy = s.y2 - s.y1;
  double t = std::clamp(((p.x - s.x1) * vx + (p.y - s.y1) * vy) / (vx * vx + vy * vy), 0.0, 1.0);
  return std::hypot(p.x - s.x1 - t * vx, p.y - s.y1 - t * vy);
}

bool overlap(const Rect& a, const Rect& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

// A drawn line is 8 pixels of 15 twips wide; no circle may lie under a line
// it doesn't own, and no two click targets may overlap.
TEST(WallLayout, CirclesStandClearOfOtherLinesAndTargetsApart) {
  constexpr double kHalfDrawnLine = 4 * 15;
  CellLines celllines = startwall();
  for (int bd = 1; bd <= kLevels; ++bd) {
    std::vector<int> squares;
    for (int s = 1; s <= kSquares; ++s) {
      if (onWall(s, bd)) squares.push_back(s);
    }
    for (int s : squares) {
      Rect circle = layout::circleAt(s, bd);
      layout::Point middle = layout::middleOf(s, bd);
      for (int line = 1; line <= kLines; ++line) {
        bool own = std::count(celllines[s].begin() + 1, celllines[s].end(), line) != 0;
        if (own) continue;
        EXPECT_GT(distanceToSegment(middle, layout::lineAt(line, bd)),
                  circle.width / 2 + kHalfDrawnLine)
            << "level " << bd << " square " << s << " line " << line;
      }
      for (int t : squares) {
        if (t > s) {
          EXPECT_FALSE(overlap(layout::targetAt(s, bd), layout::targetAt(t, bd)))
              << "level " << bd << " squares " << s << " " << t;
        }
      }
      EXPECT_GE(circle.left, layout::kBoardLeft);
      EXPECT_LE(circle.left + circle.width, layout::kSidePanel.left);
    }
  }
}

}  // namespace
}  // namespace vrask::wall
