// The cube board's tables, built from the lattice, against the printed rows
// and the counts they must have.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "boards/zorvex/layout.h"
#include "boards/zorvex/tables.h"

namespace vrask::cube {
namespace {

TEST(ZorvexTables, LineNumbersDifferFromIndexesAsPrinted) {
  const std::map<int, int> printed{{1, 1},   {6, 6},   {7, 12},  {12, 7}, {13, 22},
                                   {24, 28}, {37, 13}, {46, 34}, {54, 42}};
  for (auto [index, number] : printed) EXPECT_EQ(lineNumber(index), number) << index;
  std::set<int> numbers;
  for (int i = 1; i <= kLines; ++i) {
    numbers.insert(lineNumber(i));
    EXPECT_EQ(lineIndexOfNumber(lineNumber(i)), i);
  }
  EXPECT_EQ(numbers.size(), 54U);
  EXPECT_EQ(*numbers.rbegin(), 54);
}

TEST(ZorvexTables, SquareAndCubeTablesMatchThePrintedRows) {
  Tables t = settables();
  EXPECT_EQ(t.squarelines[1], (std::array<int, 5>{0, 1, 11, 3, 12}));
  EXPECT_EQ(t.squarelines[12], (std::array<int, 5>{0, 28, 31, 30, 32}));
  EXPECT_EQ(t.squarelines[14], (std::array<int, 5>{0, 9, 43, 21, 40}));
  EXPECT_EQ(t.squarelines[24], (std::array<int, 5>{0, 19, 54, 31, 51}));
  EXPECT_EQ(t.squarelines[25], (std::array<int, 5>{0, 5, 44, 17, 43}));
  EXPECT_EQ(t.squarelines[36], (std::array<int, 5>{0, 14, 48, 26, 47}));
  EXPECT_EQ(t.cubesquares[3], (std::array<int, 7>{0, 3, 7, 14, 18, 25, 29}));
  EXPECT_EQ(t.cubesquares[8], (std::array<int, 7>{0, 8, 12, 20, 24, 28, 32}));
  EXPECT_EQ(t.cubelines[1], (std::array<int, 13>{0, 1, 11, 3, 12, 37, 38, 40, 41, 13, 23, 15, 24}));
  EXPECT_EQ(t.cubelines[6],
            (std::array<int, 13>{0, 14, 22, 16, 23, 47, 48, 50, 51, 26, 34, 28, 35}));
  // A cube's lines are the lines of its squares, and nothing else.
  for (int c = 1; c <= kCubes; ++c) {
    std::set<int> fromSquares;
    for (int k = 1; k <= 6; ++k) {
      for (int j = 1; j <= 4; ++j) fromSquares.insert(t.squarelines[t.cubesquares[c][k]][j]);
    }
    std::set<int> own(t.cubelines[c].begin() + 1, t.cubelines[c].end());
    EXPECT_EQ(own, fromSquares) << c;
  }
}

TEST(ZorvexTables, EdgeFaceAndInnerLinesHaveTwoThreeOrFourSquaresAndTwiceTheCrossLines) {
  std::map<size_t, int> bySquares;
  for (int L = 1; L <= kLines; ++L) {
    size_t squares = squaresOfLine(L).size();
    ++bySquares[squares];
    EXPECT_EQ(crossLines(L).size(), 2 * squares) << L;
  }
  EXPECT_EQ(bySquares, (std::map<size_t, int>{{2, 24}, {3, 24}, {4, 6}}));
  // The fixed opening is line 15 with its eight cross lines.
  std::vector<int> opening = crossLines(15);
  opening.push_back(15);
  std::sort(opening.begin(), opening.end());
  EXPECT_EQ(opening, (std::vector<int>{15, 20, 21, 23, 24, 40, 41, 49, 50}));
}

TEST(ZorvexTables, PlaneNeighboursShareAnEdge) {
  EXPECT_EQ(planeNeighbours(1), (std::array<int, 2>{2, 3}));
  EXPECT_EQ(planeNeighbours(4), (std::array<int, 2>{2, 3}));
  EXPECT_EQ(planeNeighbours(33), (std::array<int, 2>{34, 35}));
  Tables t = settables();
  for (int s = 1; s <= kSquares; ++s) {
    for (int n : planeNeighbours(s)) {
      const auto& a = t.squarelines[s];
      const auto& b = t.squarelines[n];
      EXPECT_TRUE(std::any_of(a.begin() + 1, a.end(), [&](int L) {
        return std::find(b.begin() + 1, b.end(), L) != b.end();
      })) << s;
    }
  }
}

TEST(ZorvexTables, ViewsTurnTheBoardAQuarterAtATime) {
  EXPECT_EQ(lineNumber(boardLine(2, 1)), 10);
  EXPECT_EQ(lineNumber(boardLine(3, 1)), 6);
  EXPECT_EQ(lineNumber(boardLine(4, 1)), 9);
  EXPECT_EQ(boardSquare(2, 2), 1);
  EXPECT_EQ(boardSquare(3, 2), 3);
  EXPECT_EQ(boardSquare(4, 2), 4);
  Tables t = settables();
  for (int v = 1; v <= kViews; ++v) {
    for (int slot = 1; slot <= kLines; ++slot) {
      EXPECT_EQ(slotOfLine(v, boardLine(v, slot)), slot);
      EXPECT_EQ(turnLine(boardLine(4, slot)), slot);
    }
    // A drawn square shows a board square whose lines are shown by its
    // drawn lines.
    for (int slot = 1; slot <= kSquares; ++slot) {
      int s = boardSquare(v, slot);
      std::set<int> shown;
      for (int k = 1; k <= 4; ++k) shown.insert(boardLine(v, t.squarelines[slot][k]));
      EXPECT_EQ(shown, std::set<int>(t.squarelines[s].begin() + 1, t.squarelines[s].end()));
    }
  }
}

TEST(ZorvexTables, FreeLinesTakeTheColourOfOneOfTheirCubesAndStrandsAnother) {
  for (int L = 1; L <= kLines; ++L) {
    std::vector<int> cubes = cubesOfLine(L);
    EXPECT_TRUE(std::any_of(cubes.begin(), cubes.end(), [&](int c) {
      return kCubeColours[c] == designColour(L);
    })) << L;
  }
  std::vector<Strand> all = strands();
  EXPECT_EQ(all.size(), 36U);
  for (const Strand& s : all) EXPECT_NE(s.colour, designColour(s.line)) << s.line;
}

TEST(ZorvexLayout, HitZonesCoverTheirLineAndEveryLineHasOne) {
  std::set<int> covered;
  for (int zone = 0; zone < layout::kZones; ++zone) {
    int slot = layout::zoneLine(zone);
    covered.insert(slot);
    Segment seg = layout::lineAt(slot);
    Rect r = layout::zoneAt(zone);
    double mx = r.left + r.width / 2;
    double my = r.top + r.height / 2;
    // The zone's middle lies on the line, within a few twips.
    double cross = (seg.x2 - seg.x1) * (my - seg.y1) - (seg.y2 - seg.y1) * (mx - seg.x1);
    double length = std::hypot(seg.x2 - seg.x1, seg.y2 - seg.y1);
    EXPECT_LT(std::abs(cross) / length, 5.0) << zone;
  }
  EXPECT_EQ(covered.size(), 54U);
}

}  // namespace
}  // namespace vrask::cube
