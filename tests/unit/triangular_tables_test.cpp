// The triangular board's tables against their printed rows and the counts
// and properties the hexagon must have.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "boards/triangular/layout.h"
#include "boards/triangular/tables.h"

namespace vrask::triangular {
namespace {

std::set<int> asSet(const std::vector<int>& v) {
  return {v.begin(), v.end()};
}

TEST(TriangularTables, CellLinesFollowTheSlotRuleAndTheCornersOfEachTriangle) {
  CellLines celllines = start();
  EXPECT_EQ((std::array<int, 3>{32, 4, 31}), celllines[1]);
  EXPECT_EQ((std::array<int, 3>{1, 33, 32}), celllines[2]);
  EXPECT_EQ((std::array<int, 3>{13, 62, 61}), celllines[28]);
  EXPECT_EQ((std::array<int, 3>{27, 90, 89}), celllines[54]);
  std::map<int, int> cellsPerLine;
  for (int cell = 1; cell <= kCells; ++cell) {
    auto c = cornersOf(cell);
    std::array<int, 3> expected =
        pointsUp(cell)
            ? std::array{lineBetween(c[0], c[2]), lineBetween(c[1], c[2]), lineBetween(c[0], c[1])}
            : std::array{lineBetween(c[0], c[1]), lineBetween(c[1], c[2]), lineBetween(c[0], c[2])};
    EXPECT_EQ(expected, celllines[cell]) << cell;
    for (int line : celllines[cell]) ++cellsPerLine[line];
  }
  ASSERT_EQ(cellsPerLine.size(), static_cast<size_t>(kLines));
  int rim = 0;
  for (auto [line, cells] : cellsPerLine) {
    EXPECT_EQ(cells, onRim(line) ? 1 : 2) << line;
    rim += onRim(line) ? 1 : 0;
  }
  EXPECT_EQ(rim, 18);
}

TEST(TriangularTables, LinesStandBetweenThePointsOfTheHexagon) {
  for (int line = 1; line <= kLines; ++line) {
    auto [a, b] = endsOf(line);
    EXPECT_EQ(lineBetween(a, b), line);
    EXPECT_EQ(line <= kHorizontalLines, a.row == b.row) << line;
  }
  // The first line of each row of points starts at that row's leftmost point.
  const std::pair<int, double> kRowStarts[] = {{1, 2640},  {4, 1920},  {8, 1200}, {13, 480},
                                               {19, 1320}, {24, 2160}, {28, 3000}};
  for (auto [line, left] : kRowStarts) {
    Segment s = layout::lineAt(line);
    EXPECT_EQ(std::min(s.x1, s.x2), left) << line;
  }
  Segment s22 = layout::lineAt(22);
  EXPECT_EQ(s22.x1, 6000);
  EXPECT_EQ(s22.x2, 7560);
}

TEST(TriangularTables, RimTwinsPairOppositeSidesOfTheHexagon) {
  const std::map<int, int> kPairs{{1, 28},  {2, 29},  {3, 30},  {31, 72}, {49, 90},
                                  {38, 61}, {48, 73}, {60, 83}, {39, 82}};
  std::map<int, int> bothWays;
  for (auto [a, b] : kPairs) bothWays[a] = b, bothWays[b] = a;
  std::array<int, kLines + 1> colours = designColours();
  for (int line = 1; line <= kLines; ++line) {
    auto pair = bothWays.find(line);
    EXPECT_EQ(twinOf(line), pair == bothWays.end() ? 0 : pair->second) << line;
    if (pair == bothWays.end()) continue;
    EXPECT_TRUE(onRim(line)) << line;
    EXPECT_EQ(colours[line], colours[pair->second]) << line;
  }

  CellLines celllines = start();
  const std::map<int, int> kRimCells{{1, 72},  {2, 28},  {4, 29},  {6, 30},  {7, 61},  {8, 82},
                                     {16, 73}, {17, 90}, {27, 83}, {28, 38}, {38, 31}, {39, 48},
                                     {47, 39}, {48, 60}, {49, 1},  {51, 2},  {53, 3},  {54, 49}};
  for (int cell = 1; cell <= kCells; ++cell) {
    auto row = kRimCells.find(cell);
    EXPECT_EQ(rimTwinOf(celllines, cell), row == kRimCells.end() ? 0 : row->second) << cell;
  }
}

TEST(TriangularTables, ExtensionsReachPastTheCornersAndAcrossTheRimInBubbleland) {
  struct Row {
    int cell;
    std::set<int> superVrask, plusAlso;
  };
  const Row kRows[] = {{1, {5, 39, 42}, {43}},
                       {2, {2, 41, 42}, {9}},
                       {3, {4, 6, 41, 44}, {40, 45}},
                       {20, {8, 10, 40, 43, 64, 65}, {20, 39, 44}}};
  for (const Row& row : kRows) {
    EXPECT_EQ(asSet(vraskexten(SuperVrask, row.cell)), row.superVrask) << row.cell;
    std::set<int> plus = row.superVrask;
    plus.insert(row.plusAlso.begin(), row.plusAlso.end());
    EXPECT_EQ(asSet(vraskexten(SuperVraskPlus, row.cell)), plus) << row.cell;
  }
  // A cell in the middle reaches six lines, and nine in Super Vrask Plus; no
  // cell paints its own sides as extension.
  CellLines celllines = start();
  for (int cell = 1; cell <= kCells; ++cell) {
    std::vector<int> ext = vraskexten(SuperVraskPlus, cell);
    EXPECT_LE(ext.size(), 9u);
    for (int line : celllines[cell]) EXPECT_EQ(std::count(ext.begin(), ext.end(), line), 0);
  }
  EXPECT_EQ(vraskexten(SuperVrask, 34).size(), 6u);
  EXPECT_EQ(vraskexten(SuperVraskPlus, 34).size(), 9u);

  EXPECT_EQ(asSet(withbubble(SuperVrask, 1)), asSet({5, 39, 42, 23, 60, 82}));
  EXPECT_EQ(asSet(withbubble(SuperVraskPlus, 1)), asSet({5, 39, 42, 43, 23, 60, 82, 81}));
  EXPECT_EQ(withbubble(SuperVraskPlus, 20), vraskexten(SuperVraskPlus, 20));
  EXPECT_TRUE(withbubble(Vrask, 1).empty());
}

TEST(TriangularTables, SmallerSizesLeaveWholeCellsAndCountTheirMoves) {
  CellLines celllines = start();
  const int kLinesLeft[] = {0, 42, 63, 90};
  const int kCellsLeft[] = {0, 24, 37, 54};
  for (int size = 1; size <= kNormalSize; ++size) {
    Hidden hidden = hiddenBySize(size);
    std::set<int> hiddenLines = asSet(hidden.lines), hiddenCells = asSet(hidden.cells);
    EXPECT_EQ(kLines - static_cast<int>(hiddenLines.size()), kLinesLeft[size]);
    EXPECT_EQ(kCells - static_cast<int>(hiddenCells.size()), kCellsLeft[size]);
    EXPECT_EQ(movestotal(Ombrel, size), kLinesLeft[size]);
    EXPECT_EQ(movestotal(SuperVraskPlus, size), kCellsLeft[size]);
    std::set<int> linesOfShownCells;
    for (int cell = 1; cell <= kCells; ++cell) {
      int shownLines = 0;
      for (int line : celllines[cell]) {
        if (!hiddenLines.count(line)) ++shownLines;
      }
      if (hiddenCells.count(cell)) {
        EXPECT_LE(shownLines, 1) << size << " cell " << cell;
      } else {
        EXPECT_EQ(shownLines, 3) << size << " cell " << cell;
        linesOfShownCells.insert(celllines[cell].begin(), celllines[cell].end());
      }
    }
    EXPECT_EQ(static_cast<int>(linesOfShownCells.size()), kLinesLeft[size]) << size;
  }
}

}  // namespace
}  // namespace vrask::triangular
