// The 4D triangular board's triangle table, numbering and rules, against the
// printed rows and properties counted here.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "boards/tetra4d/computer.h"
#include "boards/tetra4d/layout.h"
#include "boards/tetra4d/rules.h"
#include "boards/tetra4d/tables.h"

namespace vrask::tetra4d {
namespace {

TEST(Tetra4dTables, TriangleRowsFollowTheFamilyPatternOnEachCubeAndApex) {
  TriangleLines triln = startr();
  EXPECT_EQ((std::array<int, 4>{0, 3, 27, 24}), triln[1]);    // fronttop, apex 1
  EXPECT_EQ((std::array<int, 4>{0, 8, 39, 38}), triln[36]);   // rightbottom, apex 2
  EXPECT_EQ((std::array<int, 4>{0, 9, 40, 44}), triln[17]);   // leftfront, apex 3
  EXPECT_EQ((std::array<int, 4>{0, 20, 39, 38}), triln[48]);  // rightbottom, second cube
  for (int row = 37; row <= kRows; ++row) {
    EXPECT_EQ(triln[static_cast<size_t>(row)][1], triln[static_cast<size_t>(row - 12)][1] + 12);
    EXPECT_EQ(triln[static_cast<size_t>(row)][2], triln[static_cast<size_t>(row - 12)][2]);
  }
}

// A cube edge is the base of one triangle per family, a spoke a side of the
// three triangles of its family at its corner; apex 2 serves both cubes.
TEST(Tetra4dTables, EveryLineLiesInTheTrianglesOfItsEdgeOrCorner) {
  LineTriangles lntri = lineTriangles(startr());
  for (int slot = 1; slot <= kSlots; ++slot) {
    size_t expected = isFirstCube(slot) ? 3 : isSecondCube(slot) ? 1 : apexOf(slot) == 2 ? 6 : 3;
    EXPECT_EQ(lntri[static_cast<size_t>(slot - 1)].size(), expected) << slot;
  }
  EXPECT_EQ((std::vector<int>{1, 13, 25}), lntri[3]);
}

TEST(Tetra4dTables, GridNumbersNameEveryLineOnceAndSkipTheSecondCubeUpTo36) {
  std::set<int> slots;
  for (int n = 1; n <= kLastNumber; ++n) {
    int slot = slotOfNumber(n);
    EXPECT_EQ(numberOfSlot(slot), n);
    slots.insert(slot);
  }
  EXPECT_EQ(slots.size(), static_cast<size_t>(kSlots));
  EXPECT_EQ(slotOfNumber(13), 25);
  EXPECT_EQ(slotOfNumber(36), 48);
  EXPECT_EQ(slotOfNumber(37), 13);
  EXPECT_EQ(slotOfNumber(0), 0);
  EXPECT_EQ(slotOfNumber(49), 0);
}

// Every circle and every hit area has room of its own in its figure.
TEST(Tetra4dTables, CirclesAndHitAreasDoNotOverlap) {
  auto apart = [](const layout::Rect& a, const layout::Rect& b) {
    return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
           b.top + b.height <= a.top;
  };
  for (int a = 1; a <= kTriangles; ++a) {
    for (int b = a + 1; b <= kTriangles; ++b)
      EXPECT_TRUE(apart(layout::ringOf(a), layout::ringOf(b))) << a << " " << b;
  }
  for (int a = 1; a <= kSlots; ++a) {
    for (int b = a + 1; b <= kSlots; ++b)
      EXPECT_TRUE(apart(layout::hitArea(a), layout::hitArea(b))) << a << " " << b;
  }
}

int playAll(Board& board, std::initializer_list<int> slots, int player) {
  int finished = 0;
  for (int slot : slots) {
    board.lnstate[static_cast<size_t>(slot)] = player;
    finished += static_cast<int>(griddle(board, slot, player).size());
  }
  return finished;
}

// The single cube stands in all three figures: its fronttop closes three
// triangles at once, for whoever plays it last.
TEST(Tetra4dRules, OnOneCubeAnEdgeFinishesItsTriangleInEveryFamily) {
  Board board;
  board.lnstate = freshLines(kSingleCube);
  EXPECT_EQ(playAll(board, {28, 25, 44, 41, 36, 33}, kRed), 0);
  board.lnstate[4] = kBlue;
  EXPECT_EQ((std::vector<int>{1, 13, 25}), griddle(board, 4, kBlue));
  EXPECT_EQ(board.triside[13][1], kBlue);
  EXPECT_EQ(board.triside[13][2], kRed);
}

// Two cubes: the left edge gives only its apex 1 triangle a side; the middle
// cube's edge exists once both like-named edges are played.
TEST(Tetra4dRules, OnTwoCubesTheMiddleEdgeComesWithTheSecondOfAPair) {
  Board board;
  board.level = kDualCube;
  board.lnstate = freshLines(kDualCube);
  playAll(board, {4}, kBlue);
  EXPECT_EQ(board.triside[1][1], kBlue);
  EXPECT_EQ(board.triside[13][1], 0);
  EXPECT_EQ(board.triside[25][1], 0);
  playAll(board, {16}, kRed);
  EXPECT_EQ(board.triside[25][1], kRed);
  EXPECT_EQ(board.triside[13][1], kRed);
}

TEST(Tetra4dRules, ACirclePaintsItsLinesInEveryTriangleThatHoldsThem) {
  Board board;
  paintTriangle(board, 1, kBlue);
  EXPECT_EQ(ownerOf(board, 1), kBlue);
  EXPECT_EQ(board.triside[13][1], kBlue);  // fronttop, apex 3
  EXPECT_EQ(board.triside[2][2], kBlue);   // spoke 0 of apex 1 in lefttop
  EXPECT_EQ(paintedSides(board, 2), 1);
  paintTriangle(board, 2, kRed);
  EXPECT_EQ(ownerOf(board, 1), 0);
  EXPECT_EQ(board.triside[1][3], kRed);
  paintTriangle(board, 2, 0);
  EXPECT_EQ(paintedSides(board, 1), 2);
}

// Triangle 1 lacks spoke 25, 25 lacks spoke 36, 26 lacks lefttop: the
// highest goes first. Without a capture no line of a one-sided triangle is
// played while another is left.
TEST(Tetra4dComputer, CapturesTheHighestTriangleThenPlaysSafe) {
  Board board;
  board.lnstate = freshLines(kSingleCube);
  playAll(board, {4, 28, 33, 34}, kBlue);
  EXPECT_EQ(captureLine(board), 2);
  std::vector<int> safe = safeLines(board);
  for (int risky : {1, 3, 6, 10, 11, 27, 32, 35, 37, 38, 41, 44}) {
    EXPECT_EQ(std::count(safe.begin(), safe.end(), risky), 0) << risky;
  }
  bool forced = true;
  EXPECT_EQ(quietLine(
                board, [](int n) { return n; }, forced),
            safe.back());
  EXPECT_FALSE(forced);
}

// On two cubes a triangle of apex 2 stands on the second cube, and one of
// apex 3 needs the second of its two like-named edges; while both are free
// no single line finishes it.
TEST(Tetra4dComputer, OnTwoCubesTheCaptureTakesTheLineThatIsReallyFree) {
  auto dual = [](std::initializer_list<int> slots) {
    Board board;
    board.level = kDualCube;
    board.lnstate = freshLines(kDualCube);
    playAll(board, slots, kBlue);
    return board;
  };
  EXPECT_EQ(captureLine(dual({4, 36, 33})), 16);
  EXPECT_EQ(captureLine(dual({4, 44, 41})), 16);
  EXPECT_EQ(captureLine(dual({16, 44, 41})), 4);
  EXPECT_EQ(captureLine(dual({44, 41})), 0);
}

}  // namespace
}  // namespace vrask::tetra4d
