// The HyperCube board's tables against their printed rows and the shape of
// the board they describe: a ring of four cubes joined at their corners.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "boards/hypercube/computer.h"
#include "boards/hypercube/tables.h"

namespace vrask::hypercube {
namespace {

// The corners a slot joins, each as (cube, corner); a connector joins the
// same corner of the two cubes of its step.
std::set<std::pair<int, int>> endsOf(int slot) {
  int index = indexOf(slot);
  if (!isConnector(index)) {
    const auto& corners = kEdgeCorners.at(index % kEdges);
    return {{index / kEdges, corners[0]}, {index / kEdges, corners[1]}};
  }
  const RingStep& step = kSteps.at((index - kCubeLines) / kCorners);
  int k = (index - kCubeLines) % kCorners;
  return {{step.first, k}, {step.second, k}};
}

TEST(HypercubeTables, SquaresMatchThePrintedRowsAndCloseUpAtTheirCorners) {
  SideTable sqln = startr();
  EXPECT_EQ(sqln[1], (std::array<int, 5>{0, 80, 4, 6, 5}));  // Blue's back, index 0 in slot 80
  EXPECT_EQ(sqln[7], (std::array<int, 5>{0, 12, 16, 18, 17}));
  EXPECT_EQ(sqln[24], (std::array<int, 5>{0, 39, 46, 47, 45}));
  EXPECT_EQ(sqln[25], (std::array<int, 5>{0, 24, 51, 36, 49}));
  EXPECT_EQ(sqln[61], (std::array<int, 5>{0, 80, 75, 24, 73}));
  EXPECT_EQ(sqln[72], (std::array<int, 5>{0, 9, 72, 33, 76}));
  // Each side shares one corner with the next, round the square; no square
  // is made of four connectors.
  for (int s = 1; s <= kSquares; ++s) {
    int connectors = 0;
    for (int k = 1; k <= 4; ++k) {
      auto a = endsOf(sqln[s][k]), b = endsOf(sqln[s][k % 4 + 1]);
      std::vector<std::pair<int, int>> shared;
      std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(shared));
      EXPECT_EQ(shared.size(), 1U) << "square " << s << " side " << k;
      connectors += isConnector(indexOf(sqln[s][k])) ? 1 : 0;
    }
    EXPECT_EQ(connectors, s <= 24 ? 0 : 2) << s;
  }
  // A cube line lies in four squares, a connector in three.
  LinePlaces places = placesOf(sqln);
  for (int slot = 1; slot <= kLines; ++slot) {
    EXPECT_EQ(places[slot].size(), isConnector(indexOf(slot)) ? 3U : 4U) << slot;
  }
}

TEST(HypercubeTables, LineNeighboursShareACornerAndConnectorsSkipTheRing) {
  LineNeighbours lnnb = lineNeighbours();
  for (int slot = 1; slot <= kLines; ++slot) {
    bool connector = isConnector(indexOf(slot));
    ASSERT_EQ(lnnb[slot].size(), connector ? 6U : 8U) << slot;
    auto own = endsOf(slot);
    for (int n : lnnb[slot]) {
      auto theirs = endsOf(n);
      std::vector<std::pair<int, int>> shared;
      std::set_intersection(own.begin(), own.end(), theirs.begin(), theirs.end(),
                            std::back_inserter(shared));
      EXPECT_EQ(shared.size(), 1U) << slot << " and " << n;
      if (connector) {
        EXPECT_FALSE(isConnector(indexOf(n))) << slot << " and " << n;
      }
    }
  }
  // Line 1 (index 0, Blue's back top) reaches Blue's 1, 2, 4, 5 and the
  // connectors at its corners toward Black and White.
  EXPECT_EQ(lnnb[80], (std::vector<int>{1, 2, 4, 5, 65, 67, 73, 75}));
}

TEST(HypercubeTables, PlusNeighboursFollowThePrintedRows) {
  PlusNeighbours plusnb = plusNeighbours();
  EXPECT_EQ(plusnb[1], (std::array<int, 4>{49, 50, 51, 52}));   // not 61..64
  EXPECT_EQ(plusnb[8], (std::array<int, 4>{37, 41, 44, 45}));   // Black's top
  EXPECT_EQ(plusnb[18], (std::array<int, 4>{69, 70, 71, 72}));  // White's front
  EXPECT_EQ(plusnb[21], (std::array<int, 4>{26, 29, 30, 34}));  // Red's right
  EXPECT_EQ(plusnb[25], (std::array<int, 4>{13, 19, 26, 28}));
  EXPECT_EQ(plusnb[27], plusnb[25]);
  EXPECT_EQ(plusnb[56], (std::array<int, 4>{8, 2, 49, 57}));
  EXPECT_EQ(plusnb[72], (std::array<int, 4>{5, 17, 67, 68}));
  // A face takes the squares standing on its own edges (their third side);
  // no square takes itself.
  SideTable sqln = startr();
  for (int s = 1; s <= kSquares; ++s) {
    for (int n : plusnb[s]) {
      EXPECT_NE(n, s);
      if (s > 24) continue;
      auto sides = sqln[s];
      EXPECT_NE(std::find(sides.begin() + 1, sides.end(), sqln[n][3]), sides.end())
          << s << " takes " << n;
    }
  }
}

TEST(HypercubeTables, FreeLinesTakeTheirCubesOrTheirOwnColoursAndTheirArrays) {
  auto colours = designColours();
  EXPECT_EQ(colours[80], 16711680);
  EXPECT_EQ(colours[13], 0);
  EXPECT_EQ(colours[24], 16777215);
  EXPECT_EQ(colours[47], 128);
  EXPECT_EQ(colours[49], 65535);     // t1 leftback
  EXPECT_EQ(colours[48], 12582912);  // t1 leftfront
  EXPECT_EQ(colours[79], 4210752);   // t4 rightbackbottom
  EXPECT_EQ(segmentArrayName(0), "c1backtop");
  EXPECT_EQ(segmentArrayName(47), "c1frontbottom");
  EXPECT_EQ(segmentArrayName(56), "t3leftfront");
  EXPECT_EQ(segmentArrayName(71), "t2rightbackbottom");
}

TEST(HypercubeComputer, TakesTheLowestThreeSidedSquareAndOffersOnlySafeLines) {
  SideTable sqln = startr();
  SideValues sqside{};
  LineValues lnown{};
  LinePlaces places = placesOf(sqln);
  auto paint = [&](int slot) {
    lnown[slot] = 2;
    for (SidePlace p : places[slot]) sqside[p.square][p.side] = 2;
  };
  // Three sides of Blue's back (1), two of its right (3) and bottom (4).
  for (int slot : {80, 4, 6, 8}) paint(slot);
  SquareValues sidecount = countPaintedSides(sqside);
  EXPECT_EQ(lineToTake(sqln, sqside, sidecount), 5);
  // Line 5 finishes square 1 and is safe: no two-sided square holds it.
  std::vector<int> safe = safeLines(sqln, sidecount, lnown);
  auto listed = [&safe](int slot) { return std::count(safe.begin(), safe.end(), slot) == 1; };
  EXPECT_TRUE(listed(5));
  for (int slot : {2, 7, 10, 11, 80, 4}) EXPECT_FALSE(listed(slot)) << slot;
  EXPECT_EQ(safe.size(), 72U);
  EXPECT_EQ(freeLines(lnown).size(), 76U);

  SquareValues sqtaken{};
  sqtaken[1] = 2;
  EXPECT_EQ(squareToTake(sidecount, sqtaken), 3);  // 1 is closed; 3 is the first with two sides
  EXPECT_EQ(squareToTake(SquareValues{}, SquareValues{}), 0);
}

}  // namespace
}  // namespace vrask::hypercube
