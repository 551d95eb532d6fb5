// The 4D triangular board: one cube whose eight corners are joined to three
// apex points, or in the larger level two cubes sharing a third.
//
// A line has a slot 1 to 48: the first cube's twelve edges, the second cube's
// twelve, then eight spokes to each of the three apexes. Its hit area is
// `Label1(slot - 1)`, and that index is what the triangle table holds.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace vrask::tetra4d {

inline constexpr int kSlots = 48;
inline constexpr int kTriangles = 36;  // the cells of the game
inline constexpr int kRows = 48;       // rows of `triln`: 37..48 restate 25..36 on the second cube
inline constexpr int kEdges = 12;
inline constexpr int kSpokes = 8;
inline constexpr int kNumbers = 36;  // grid numbers of the lines of one cube and its spokes

// `lnstate` and `triside` values: free, a player's, not on the board.
enum LineState : int { kFree = 0, kBlue = 1, kRed = 2, kOffBoard = 5 };

// The levels (`lvm`) and the entries of the menu `game` (2 and 5 are
// separators).
enum Level : int { kSingleCube = 1, kDualCube = 2 };
enum Game : int {
  kOmbrel = 1,
  kClassic = 3,
  kSetCount = 4,
  kClassicVraskMove = 6,
  kSetCountVraskMove = 7
};

// Cube edges by position 1..12 in their group, spokes by corner 0..7.
extern const std::array<std::string_view, kEdges + 1> kEdgeNames;
extern const std::array<std::string_view, kSpokes> kSpokeNames;

// One row of a family of twelve triangles: cube edge `e` (1..12) and the
// spokes `p`, `q` (0..7) of the corners at its ends.
struct Pattern {
  int e, p, q;
};
extern const std::array<Pattern, kEdges> kFamilyPattern;

// The slot of edge e (1..12) of cube 1 or 2, and of spoke k (0..7) of apex
// 1, 2 or 3.
constexpr int cubeSlot(int cube, int e) {
  return (cube - 1) * kEdges + e;
}
constexpr int spokeSlot(int apex, int k) {
  return 2 * kEdges + 1 + (apex - 1) * kSpokes + k;
}
constexpr bool isFirstCube(int slot) {
  return slot >= 1 && slot <= kEdges;
}
constexpr bool isSecondCube(int slot) {
  return slot > kEdges && slot <= 2 * kEdges;
}
constexpr bool isSpoke(int slot) {
  return slot > 2 * kEdges && slot <= kSlots;
}
// Apex 1..3 and corner 0..7 of a spoke's slot.
constexpr int apexOf(int slot) {
  return (slot - 2 * kEdges - 1) / kSpokes + 1;
}
constexpr int cornerOf(int slot) {
  return (slot - 2 * kEdges - 1) % kSpokes;
}
// Position 1..12 of a cube line in its group.
constexpr int edgeOf(int slot) {
  return (slot - 1) % kEdges + 1;
}

// Triangles 1..12 lean on apex 1, 13..24 on apex 3, 25..36 on apex 2; rows
// 37..48 restate 25..36 on the second cube.
constexpr int apexOfRow(int row) {
  constexpr std::array<int, 4> apexes{1, 3, 2, 2};
  return apexes.at(static_cast<size_t>((row - 1) / kEdges));
}

// `triln(row, side)`: hit-area indexes (slot - 1) of the three sides, side 1
// the cube edge, 2 and 3 the spokes. Row 0 is unused.
using TriangleLines = std::array<std::array<int, 4>, kRows + 1>;
TriangleLines startr();

// `lntri`: the rows (1..48) that hold each hit-area index, up to six.
using LineTriangles = std::array<std::vector<int>, kSlots>;
LineTriangles lineTriangles(const TriangleLines& triln);

// The row of the family whose cube edge is e (1..12), 1..12.
int rowOfEdge(int e);

// Grid numbers. Slots 1..12 are numbered as they are, the spokes 13..36. The
// second cube has no number of its own in the design; it is numbered 37..48
// here, so that the keypad reaches it in the larger level.
int numberOfSlot(int slot);
// The slot a number names, or 0.
int slotOfNumber(int n);
inline constexpr int kSecondCubeFirstNumber = 37;
inline constexpr int kLastNumber = 48;

// The design colour of each spoke by corner: apexes 1 and 2 share a palette.
int spokeColour(int apex, int k);

}  // namespace vrask::tetra4d
