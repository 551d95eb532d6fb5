// The computer's decisions on the tetrahedron board that decide games.
#include <gtest/gtest.h>

#include "boards/quennel/computer.h"

namespace vrask::quennel {
namespace {

// Marks line `line` on every face side that holds it, as a move does.
void mark(const CellLines& celllines, SideMarks& sidemark, int line, int value = 1) {
  for (int f = 1; f <= kFaces; ++f) {
    for (int slot = 1; slot <= 3; ++slot) {
      if (celllines[f][slot] == line) sidemark[f][slot] = value;
    }
  }
}

TEST(QuennelComputer, LineGameClosesTheLowestFaceFirstAndAvoidsSecondSides) {
  CellLines celllines = startgrids();
  SideMarks sidemark{};
  LineValues linetaken{};
  for (int line : {1, 2, 22, 23}) {  // faces 1 and 20 have two sides each
    mark(celllines, sidemark, line);
    linetaken[line] = 1;
  }
  FaceCounts sidecount = countMarkedSides(sidemark, 20);
  EXPECT_EQ(facesToClose(sidecount, 20), (std::vector<int>{1, 20}));

  // Faces 5, 8, 9, 16 and 19 have one side: their lines are unsafe. Line 22
  // lies on four faces; 11 is unsafe through face 19, which it shares with 22.
  std::vector<int> danger = dangerLines(celllines, sidecount, 20);
  std::vector<int> candidates = lineCandidates(danger, linetaken, 24);
  for (int unsafe : {3, 5, 6, 11, 18, 19, 20, 21}) {
    EXPECT_EQ(std::count(candidates.begin(), candidates.end(), unsafe), 0) << unsafe;
  }
  EXPECT_EQ(candidates.front(), 4);
  // Lines 25..39 are not on the board of the first size.
  EXPECT_LE(candidates.back(), 24);
}

TEST(QuennelComputer, WhenEveryFreeLineIsUnsafeItDrawsFromThemAll) {
  CellLines celllines = startgrids();
  SideMarks sidemark{};
  LineValues linetaken{};
  for (int line = 1; line <= 24; ++line) linetaken[line] = 1;
  linetaken[1] = linetaken[2] = 0;  // both lie on face 1, which has one side
  mark(celllines, sidemark, 4);
  FaceCounts sidecount = countMarkedSides(sidemark, 20);
  std::vector<int> danger = dangerLines(celllines, sidecount, 20);
  EXPECT_EQ(lineCandidates(danger, linetaken, 24), (std::vector<int>{1, 2}));
}

TEST(QuennelComputer, FaceGamePlaysTheLowestFreeFaceWithTheMostColouredSides) {
  FaceCounts sidecount{};
  FaceCounts facetaken{};
  EXPECT_EQ(faceTarget(sidecount, facetaken, 20), 1);  // nothing coloured: the first free face
  sidecount[5] = 1;
  sidecount[9] = 2;
  sidecount[3] = 2;
  sidecount[30] = 3;  // beyond the first size
  EXPECT_EQ(faceTarget(sidecount, facetaken, 20), 3);
  EXPECT_EQ(faceTarget(sidecount, facetaken, 36), 30);
  facetaken[3] = 1;
  sidecount[12] = 3;
  facetaken[12] = 2;  // dead: never played
  EXPECT_EQ(faceTarget(sidecount, facetaken, 20), 9);
  for (int f = 1; f <= 20; ++f) facetaken[f] = 1;
  EXPECT_EQ(faceTarget(sidecount, facetaken, 20), 0);
}

}  // namespace
}  // namespace vrask::quennel
