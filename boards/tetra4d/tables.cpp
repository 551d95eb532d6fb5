#include "boards/tetra4d/tables.h"

namespace vrask::tetra4d {

const std::array<std::string_view, kEdges + 1> kEdgeNames{
    "",           "backtop",    "lefttop",     "righttop",  "fronttop",   "rightback",  "leftback",
    "backbottom", "leftbottom", "rightbottom", "leftfront", "rightfront", "frontbottom"};

const std::array<std::string_view, kSpokes> kSpokeNames{
    "leftfront",       "leftback",       "rightback",       "rightfront",
    "leftfrontbottom", "leftbackbottom", "rightbackbottom", "rightfrontbottom"};

// The four top edges, the four uprights, the four bottom edges; each with the
// spokes of its two corners.
const std::array<Pattern, kEdges> kFamilyPattern{{{4, 3, 0},
                                                  {2, 0, 1},
                                                  {1, 1, 2},
                                                  {3, 2, 3},
                                                  {10, 0, 4},
                                                  {6, 1, 5},
                                                  {5, 2, 6},
                                                  {11, 3, 7},
                                                  {12, 4, 7},
                                                  {8, 5, 4},
                                                  {7, 6, 5},
                                                  {9, 7, 6}}};

TriangleLines startr() {
  TriangleLines triln{};
  for (int row = 1; row <= kRows; ++row) {
    const Pattern& pattern = kFamilyPattern.at(static_cast<size_t>((row - 1) % kEdges));
    int cube = row > kTriangles ? 2 : 1;
    int apex = apexOfRow(row);
    auto& sides = triln.at(static_cast<size_t>(row));
    sides[1] = cubeSlot(cube, pattern.e) - 1;
    sides[2] = spokeSlot(apex, pattern.p) - 1;
    sides[3] = spokeSlot(apex, pattern.q) - 1;
  }
  return triln;
}

LineTriangles lineTriangles(const TriangleLines& triln) {
  LineTriangles lntri;
  for (int row = 1; row <= kRows; ++row) {
    for (int side = 1; side <= 3; ++side) {
      lntri
          .at(static_cast<size_t>(triln.at(static_cast<size_t>(row)).at(static_cast<size_t>(side))))
          .push_back(row);
    }
  }
  return lntri;
}

int rowOfEdge(int e) {
  for (int r = 0; r < kEdges; ++r) {
    if (kFamilyPattern.at(static_cast<size_t>(r)).e == e) return r + 1;
  }
  return 0;
}

int numberOfSlot(int slot) {
  if (isFirstCube(slot)) return slot;
  if (isSecondCube(slot)) return slot + kSecondCubeFirstNumber - kEdges - 1;
  if (isSpoke(slot)) return slot - kEdges;
  return 0;
}

int slotOfNumber(int n) {
  if (n >= 1 && n <= kEdges) return n;
  if (n > kEdges && n <= kNumbers) return n + kEdges;
  if (n >= kSecondCubeFirstNumber && n <= kLastNumber)
    return n - kSecondCubeFirstNumber + kEdges + 1;
  return 0;
}

int spokeColour(int apex, int k) {
  constexpr std::array<int, kSpokes> sides{12582912, 65535,    16711935, 65280,
                                           255,      12632319, 16776960, 8421376};
  constexpr std::array<int, kSpokes> middle{8438015, 4210752, 0,     192,
                                            32768,   8388736, 49344, 16761024};
  return (apex == 3 ? middle : sides).at(static_cast<size_t>(k));
}

}  // namespace vrask::tetra4d
