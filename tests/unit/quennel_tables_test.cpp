// The tetrahedron board's tables against their printed rows and the shape of
// the solid.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "boards/quennel/layout.h"
#include "boards/quennel/tables.h"

namespace vrask::quennel {
namespace {

std::set<int> linesOf(const CellLines& celllines, int face) {
  return {celllines[face][1], celllines[face][2], celllines[face][3]};
}

TEST(QuennelTables, EachSmallTetrahedronHasTheSixLinesOfItsRowAndSpansItsEnds) {
  const std::vector<std::vector<int>> printed{{1, 2, 3, 4, 5, 6},       {7, 8, 9, 10, 11, 12},
                                              {13, 14, 15, 16, 17, 18}, {19, 20, 21, 22, 23, 24},
                                              {10, 11, 12, 25, 26, 27}, {16, 17, 18, 28, 29, 30},
                                              {22, 23, 24, 31, 32, 33}, {34, 35, 36, 37, 38, 39}};
  for (int t = 0; t < 8; ++t) EXPECT_EQ(tetrahedronLines(t), printed[t]) << kTetrahedra[t];
  EXPECT_EQ(lineBetween(vertexIndex('J'), vertexIndex('M')), 34);
  EXPECT_EQ(tetrahedronOf(11), 1);  // drawn with the upper of its two tetrahedra
  EXPECT_EQ(tetrahedronOf(37), 7);
}

// The faces are exactly the triangles that the lines make, and a face of the
// first size uses only the lines of the first size.
TEST(QuennelTables, FacesAreTheTrianglesOfTheLinesAndTheFirstSizeIsClosed) {
  CellLines celllines = startgrids();
  EXPECT_EQ(linesOf(celllines, 1), (std::set<int>{1, 2, 4}));
  EXPECT_EQ(linesOf(celllines, 36), (std::set<int>{34, 35, 36}));

  std::set<std::array<int, 3>> triangles;
  for (int a = 0; a < kVertices; ++a) {
    for (int b = a + 1; b < kVertices; ++b) {
      for (int c = b + 1; c < kVertices; ++c) {
        if (lineBetween(a, b) && lineBetween(b, c) && lineBetween(a, c))
          triangles.insert({a, b, c});
      }
    }
  }
  std::set<std::array<int, 3>> faces;
  std::map<int, int> facesOnLine;
  for (int f = 1; f <= kFaces; ++f) {
    std::array<int, 3> v = faceVertices(celllines, f);
    EXPECT_EQ(
        linesOf(celllines, f),
        (std::set<int>{lineBetween(v[0], v[1]), lineBetween(v[1], v[2]), lineBetween(v[0], v[2])}))
        << f;
    faces.insert(v);
    for (int line : linesOf(celllines, f)) {
      ++facesOnLine[line];
      if (f <= facesOfSize(0)) {
        EXPECT_LE(line, linesOfSize(0)) << f;
      }
    }
  }
  EXPECT_EQ(faces, triangles);
  int most = 0;
  for (auto [line, count] : facesOnLine) most = std::max(most, count);
  EXPECT_EQ(most, 4);  // one line can close four faces
  EXPECT_EQ(facesOnLine[11], 4);
}

// The printed cycles of a third of a turn, for lines and for faces.
TEST(QuennelTables, ATurnCarriesLinesAndFacesRoundTheirPrintedCycles) {
  CellLines celllines = startgrids();
  const std::vector<std::array<int, 3>> lineCycles{
      {1, 2, 3},    {4, 5, 6},    {7, 14, 21},  {8, 15, 19},  {9, 13, 20},
      {10, 17, 24}, {11, 18, 22}, {12, 16, 23}, {25, 29, 33}, {26, 30, 31},
      {27, 28, 32}, {34, 35, 36}, {37, 38, 39}};
  const std::vector<std::array<int, 3>> faceCycles{
      {1, 5, 9},    {2, 6, 10},   {3, 7, 11},   {4, 8, 12},   {14, 15, 16},
      {17, 18, 20}, {21, 25, 29}, {22, 26, 30}, {23, 27, 31}, {24, 28, 32},
      {33, 34, 35}, {13, 13, 13}, {19, 19, 19}, {36, 36, 36}};
  Turn t = turned(celllines);
  for (auto [a, b, c] : lineCycles) {
    EXPECT_EQ(turnLine(a), b);
    EXPECT_EQ(turnLine(b), c);
    EXPECT_EQ(turnLine(c), a);
    EXPECT_EQ(t.line[3][a], c);
    EXPECT_EQ(t.lineScreen[2][b], a);
  }
  for (auto [a, b, c] : faceCycles) {
    EXPECT_EQ(turnFace(celllines, a), b);
    EXPECT_EQ(turnFace(celllines, b), c);
    EXPECT_EQ(turnFace(celllines, c), a);
    EXPECT_EQ(t.face[2][a], b);
    EXPECT_EQ(t.faceScreen[3][c], a);
  }
  for (int f = 1; f <= kFaces; ++f) {  // a turned face has the turned lines
    std::set<int> turnedLines;
    for (int line : linesOf(celllines, f)) turnedLines.insert(turnLine(line));
    EXPECT_EQ(turnedLines, linesOf(celllines, turnFace(celllines, f))) << f;
  }
}

TEST(QuennelTables, SuperMovesRunOnAlongTheBigEdgesAsPrinted) {
  CellLines celllines = startgrids();
  const std::map<int, std::array<int, 2>> printed{
      {1, {7, 14}},   {2, {1, 16}},   {4, {2, 10}},   {5, {14, 21}},  {6, {2, 23}},
      {8, {3, 17}},   {9, {7, 21}},   {10, {3, 12}},  {12, {1, 24}},  {17, {16, 24}},
      {18, {10, 23}}, {20, {12, 17}}, {21, {16, 37}}, {22, {10, 38}}, {24, {25, 29}},
      {25, {23, 38}}, {26, {17, 39}}, {28, {29, 33}}, {29, {12, 39}}, {30, {24, 37}},
      {32, {25, 33}}};
  for (int f = 1; f <= kFaces; ++f) {
    auto row = printed.find(f);
    if (row == printed.end()) {
      EXPECT_FALSE(extension(celllines, f).has_value()) << f;
    } else {
      EXPECT_EQ(extension(celllines, f), row->second) << f;
    }
  }
}

TEST(QuennelTables, GamesListTheirSizeAndOnlyClassicAndOmbrelTurn) {
  std::set<int> turnable;
  for (const Game& g : games()) {
    EXPECT_EQ(gameOf(g.gamecode), &g);
    EXPECT_EQ(g.levelfull == 1, std::string(g.menu).find("Full") != std::string::npos) << g.menu;
    EXPECT_EQ(g.count == Count::Lines, playsLines(g.gamecode));
    if (g.turnable) turnable.insert(g.gamecode);
  }
  EXPECT_EQ(turnable, (std::set<int>{0, 2, 5, 8, 11, 14}));
  for (int separator : {1, 3, 4, 7, 10, 13, 16, 19}) EXPECT_EQ(gameOf(separator), nullptr);
  EXPECT_EQ(facesOfSize(0) + linesOfSize(0) + facesOfSize(1) + linesOfSize(1), 20 + 24 + 36 + 39);
}

// No circle covers another, and no line's number covers another's.
TEST(QuennelLayout, CirclesAndLineNumbersStandClearOfEachOther) {
  auto apart = [](layout::Rect a, layout::Rect b) {
    return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
           b.top + b.height <= a.top;
  };
  auto centreGap = [](layout::Rect a, layout::Rect b) {
    return std::hypot(a.left - b.left, a.top - b.top);
  };
  for (int f = 1; f <= kFaces; ++f) {
    for (int g = f + 1; g <= kFaces; ++g) {
      EXPECT_GE(centreGap(layout::faceCircleAt(f), layout::faceCircleAt(g)), layout::kCircle)
          << f << " " << g;
    }
    EXPECT_LT(layout::faceCircleAt(f).left + layout::kCircle, layout::kSidePanel.left);
  }
  for (int a = 1; a <= kLines; ++a) {
    for (int b = a + 1; b <= kLines; ++b) {
      EXPECT_TRUE(apart(layout::lineLabelAt(a), layout::lineLabelAt(b))) << a << " " << b;
    }
  }
}

}  // namespace
}  // namespace vrask::quennel
