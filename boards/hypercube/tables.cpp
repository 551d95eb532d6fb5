#include "boards/hypercube/tables.h"

#include <algorithm>

namespace vrask::hypercube {

namespace {

// Each cube in the ring has a step that leaves it and one that arrives at it.
const RingStep& stepArrivingAt(int cube) {
  return *std::find_if(kSteps.begin(), kSteps.end(),
                       [cube](const RingStep& s) { return s.second == cube; });
}

// Free cube lines are drawn in their cube's colour; Red's cube is a dark red
// so that no free line reads as Red's.
constexpr std::array<int, kCubes> kCubeColours{16711680, 0, 16777215, 128};

// The connectors' own colours, group by group in the order of `kSteps`, each
// row in the order the corners' names sort in: leftback, leftbackbottom,
// leftfront, leftfrontbottom, rightback, rightbackbottom, rightfront,
// rightfrontbottom.
constexpr std::array<std::array<int, kCorners>, kCubes> kConnectorColours{
    {{65535, 12632319, 12582912, 255, 16711935, 16776960, 65280, 8421376},
     {14737632, 8388736, 8438015, 32768, 12648384, 49344, 4210816, 16761024},
     {8388736, 12632064, 12582912, 12632319, 16711935, 14737632, 65280, 33023},
     {14737632, 16761024, 8438015, 4194368, 0, 4210752, 192, 49152}}};
// The corner of each position of a row above.
constexpr std::array<int, kCorners> kCornerByNameOrder{1, 5, 0, 4, 3, 7, 2, 6};

// The three edges of a cube that meet at corner k.
std::vector<int> edgesAt(int k) {
  std::vector<int> edges;
  for (int e = 0; e < kEdges; ++e) {
    if (kEdgeCorners.at(e)[0] == k || kEdgeCorners.at(e)[1] == k) edges.push_back(e);
  }
  return edges;
}

}  // namespace

SideTable startr() {
  SideTable sqln{};
  for (int c = 0; c < kCubes; ++c) {
    for (int x = 0; x < kFaces; ++x) {
      for (int k = 0; k < 4; ++k) {
        sqln.at(faceSquare(c, x)).at(k + 1) = slotOf(cubeLine(c, kFaceEdges.at(x).at(k)));
      }
    }
  }
  for (const RingStep& step : kSteps) {
    for (int r = 0; r < kEdges; ++r) {
      const BlockRow& row = kBlockRows.at(r);
      sqln.at(step.block + r) = {0, slotOf(cubeLine(step.first, row.e)), slotOf(step.base + row.p),
                                 slotOf(cubeLine(step.second, row.e)), slotOf(step.base + row.q)};
    }
  }
  return sqln;
}

LinePlaces placesOf(const SideTable& sqln) {
  LinePlaces places;
  for (int s = 1; s <= kSquares; ++s) {
    for (int k = 1; k <= 4; ++k) places.at(sqln.at(s).at(k)).push_back({s, k});
  }
  return places;
}

LineNeighbours lineNeighbours() {
  LineNeighbours lnnb;
  auto add = [&lnnb](int index, int neighbour) {
    lnnb.at(slotOf(index)).push_back(slotOf(neighbour));
  };
  for (int c = 0; c < kCubes; ++c) {
    for (int e = 0; e < kEdges; ++e) {
      int line = cubeLine(c, e);
      for (int k : kEdgeCorners.at(e)) {
        for (int other : edgesAt(k)) {
          if (other != e) add(line, cubeLine(c, other));
        }
        for (const RingStep& step : kSteps) {
          if (step.first == c || step.second == c) add(line, step.base + k);
        }
      }
    }
  }
  for (const RingStep& step : kSteps) {
    for (int k = 0; k < kCorners; ++k) {
      for (int e : edgesAt(k)) {
        add(step.base + k, cubeLine(step.first, e));
        add(step.base + k, cubeLine(step.second, e));
      }
    }
  }
  for (auto& neighbours : lnnb) std::sort(neighbours.begin(), neighbours.end());
  return lnnb;
}

// A face takes the connecting squares of the step that arrives at its cube,
// in the rows that stand on the face's edges. A connecting square takes face
// x of both its cubes and two more rows of its block.
PlusNeighbours plusNeighbours() {
  struct RowPlus {
    int x, u, v;
  };
  constexpr std::array<RowPlus, kEdges> kRowPlus{{{0, 1, 3},
                                                  {2, 4, 5},
                                                  {0, 1, 3},
                                                  {4, 6, 7},
                                                  {1, 0, 8},
                                                  {3, 2, 10},
                                                  {3, 2, 10},
                                                  {1, 0, 8},
                                                  {5, 9, 11},
                                                  {2, 4, 5},
                                                  {5, 9, 11},
                                                  {4, 6, 7}}};
  PlusNeighbours plusnb{};
  for (int c = 0; c < kCubes; ++c) {
    int block = stepArrivingAt(c).block;
    for (int x = 0; x < kFaces; ++x) {
      int n = 0;
      for (int r = 0; r < kEdges; ++r) {
        const auto& edges = kFaceEdges.at(x);
        if (std::find(edges.begin(), edges.end(), kBlockRows.at(r).e) != edges.end()) {
          plusnb.at(faceSquare(c, x)).at(n++) = block + r;
        }
      }
    }
  }
  for (const RingStep& step : kSteps) {
    for (int r = 0; r < kEdges; ++r) {
      const RowPlus& p = kRowPlus.at(r);
      plusnb.at(step.block + r) = {faceSquare(step.first, p.x), faceSquare(step.second, p.x),
                                   step.block + p.u, step.block + p.v};
    }
  }
  return plusnb;
}

std::array<int, kLines + 1> designColours() {
  std::array<int, kLines + 1> colours{};
  for (int c = 0; c < kCubes; ++c) {
    for (int e = 0; e < kEdges; ++e) colours.at(slotOf(cubeLine(c, e))) = kCubeColours.at(c);
  }
  for (int g = 0; g < kCubes; ++g) {
    for (int n = 0; n < kCorners; ++n) {
      colours.at(slotOf(kSteps.at(g).base + kCornerByNameOrder.at(n))) =
          kConnectorColours.at(g).at(n);
    }
  }
  return colours;
}

std::string segmentArrayName(int index) {
  if (!isConnector(index)) return std::string("c1") + kEdgeNames.at(index % kEdges);
  const RingStep& step = kSteps.at((index - kCubeLines) / kCorners);
  return std::string(step.group) + kCornerNames.at((index - kCubeLines) % kCorners);
}

}  // namespace vrask::hypercube
