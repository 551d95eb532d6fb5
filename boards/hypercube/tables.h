// The HyperCube board's numbers: four cubes in a ring (Blue, White, Red,
// Black, back to Blue) joined at their corners by connector lines. Which lines
// bound which squares, which lines a Line Vrask move paints with its line,
// which squares a Super Vrask Plus move takes with its square, and the colours
// the free lines are drawn in. Plain data and pure functions.
//
// A line has an index 0..79 (its hit area `Label1(index)`) and a grid number
// index + 1, the number a player sees and types. Tables indexed by line use
// slots 1..80: the slot of index i is i, except that index 0 has slot 80.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace vrask::hypercube {

// How many of each the board has; the connectors' indexes follow the cube
// lines'.
enum Counts : int {
  kLines = 80,
  kSquares = 72,
  kCubes = 4,
  kEdges = 12,
  kCorners = 8,
  kFaces = 6,
  kCubeLines = kCubes * kEdges,
};

// Cubes by the number their lines are counted with (index = 12 c + e).
enum Cube { Blue = 0, Black = 1, White = 2, Red = 3 };

// The slot of line index `index` (0..79), and back.
inline int slotOf(int index) {
  return index == 0 ? kLines : index;
}
inline int indexOf(int slot) {
  return slot == kLines ? 0 : slot;
}
// The number a player sees beside the line of `slot`, and types.
inline int gridNumber(int slot) {
  return indexOf(slot) + 1;
}

// Corners: k = 4 bottom + 2 right + back, so 0 is left front top and 7 right
// back bottom.
inline bool isBack(int k) {
  return (k & 1) != 0;
}
inline bool isRight(int k) {
  return (k & 2) != 0;
}
inline bool isBottom(int k) {
  return (k & 4) != 0;
}

// The two corners of each edge of a cube, edges counted 0 `backtop` to 11
// `frontbottom`.
inline constexpr std::array<std::array<int, 2>, kEdges> kEdgeCorners{{{1, 3},
                                                                      {0, 1},
                                                                      {2, 3},
                                                                      {0, 2},
                                                                      {3, 7},
                                                                      {1, 5},
                                                                      {5, 7},
                                                                      {4, 5},
                                                                      {6, 7},
                                                                      {0, 4},
                                                                      {2, 6},
                                                                      {4, 6}}};
inline constexpr std::array<const char*, kEdges> kEdgeNames{
    "backtop",    "lefttop",    "righttop",    "fronttop",  "rightback",  "leftback",
    "backbottom", "leftbottom", "rightbottom", "leftfront", "rightfront", "frontbottom"};
// The suffix of a connector's name by its corner.
inline constexpr std::array<const char*, kCorners> kCornerNames{
    "leftfront",       "leftback",       "rightfront",       "rightback",
    "leftfrontbottom", "leftbackbottom", "rightfrontbottom", "rightbackbottom"};

// The six faces of a cube in their order (back, top, right, bottom, left,
// front), each by its four edges in side order.
inline constexpr std::array<std::array<int, 4>, kFaces> kFaceEdges{
    {{0, 4, 6, 5}, {0, 2, 3, 1}, {4, 8, 10, 2}, {6, 8, 11, 7}, {5, 7, 9, 1}, {3, 10, 11, 9}}};

// One step of the ring: its connectors are base + k, from corner k of the
// first cube to corner k of the second, and its twelve connecting squares
// are block..block + 11.
struct RingStep {
  const char* group;
  int base;
  int first;
  int second;
  int block;
};
// In the order of their line numbers.
inline constexpr std::array<RingStep, kCubes> kSteps{{{"t1", 48, White, Red, 25},
                                                      {"t3", 56, Red, Black, 37},
                                                      {"t2", 64, Black, Blue, 49},
                                                      {"t4", 72, Blue, White, 61}}};

// A row of a block of connecting squares: it stands on edge e, and its sides
// are edge e of the first cube, connector p, edge e of the second cube,
// connector q.
struct BlockRow {
  int e;
  int p;
  int q;
};
inline constexpr std::array<BlockRow, kEdges> kBlockRows{{{0, 3, 1},
                                                          {4, 7, 3},
                                                          {6, 5, 7},
                                                          {5, 1, 5},
                                                          {2, 3, 2},
                                                          {8, 6, 7},
                                                          {7, 4, 5},
                                                          {1, 1, 0},
                                                          {3, 2, 0},
                                                          {10, 6, 2},
                                                          {11, 4, 6},
                                                          {9, 0, 4}}};

inline int cubeLine(int cube, int edge) {
  return kEdges * cube + edge;
}
// The face square (1..24) of face x (0..5) of `cube`.
inline int faceSquare(int cube, int x) {
  return kFaces * cube + x + 1;
}
inline bool isConnector(int index) {
  return index >= kCubeLines;
}

// sqln: the slot of side k (1..4) of square s (1..72); row 0 and column 0
// unused.
using SideTable = std::array<std::array<int, 5>, kSquares + 1>;
// The faces, cube by cube, then the blocks of connecting squares step by step.
SideTable startr();

// Where a line stands in the side table: square and side.
struct SidePlace {
  int square;
  int side;
};
// For each slot (1..80) the places that hold it, in square order.
using LinePlaces = std::array<std::vector<SidePlace>, kLines + 1>;
LinePlaces placesOf(const SideTable& sqln);

// lnnb: for each slot the slots a Line Vrask move paints with it, in
// ascending order: for a cube line the 8 lines that share a corner with it,
// for a connector the 6 cube lines at its two ends.
using LineNeighbours = std::array<std::vector<int>, kLines + 1>;
LineNeighbours lineNeighbours();

// plusnb: for each square the four squares a Super Vrask Plus move takes with
// it, in table order.
using PlusNeighbours = std::array<std::array<int, 4>, kSquares + 1>;
PlusNeighbours plusNeighbours();

// The colour each line is drawn in while free (index 0 of the array unused,
// slots 1..80): a cube line in its cube's colour, a connector in one of its
// own.
std::array<int, kLines + 1> designColours();

// The name of a line's segment array: `c1backtop` ... for cube lines,
// `t1leftfront` ... for connectors.
std::string segmentArrayName(int index);

}  // namespace vrask::hypercube
