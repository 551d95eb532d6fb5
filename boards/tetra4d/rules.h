// The rules over the triangles, from the line states and the owners of the
// triangles' sides alone: what a line claims, what a circle paints, which
// lines the computer may play. No drawing here.
#pragma once

#include <array>
#include <vector>

#include "boards/tetra4d/tables.h"

namespace vrask::tetra4d {

using LineStates = std::array<int, kSlots + 1>;                     // `lnstate`, 1-based
using SideOwners = std::array<std::array<int, 4>, kTriangles + 1>;  // `triside`, 1-based

struct Board {
  TriangleLines triln = startr();
  LineStates lnstate{};
  SideOwners triside{};
  int level = kSingleCube;
};

// Slots 13..24 are off the board in the smaller level.
LineStates freshLines(int level);

// A line game move by `player` on `slot` (already marked in `lnstate`): the
// sides it gives, and the triangles it finishes, in the order they score.
std::vector<int> griddle(Board& board, int slot, int player);

// Circle games: `code` (0 wipes) on every side of triangles 1..36 that holds
// one of triangle t's three lines.
void paintTriangle(Board& board, int t, int code);

// 1 or 2 when all three sides of t are that player's, else 0.
int ownerOf(const Board& board, int t);
int paintedSides(const Board& board, int t);

// The slot that would give side `side` of triangle t now: in the larger
// level a triangle of apex 2 stands on the second cube, and one of apex 3 on
// the second played of two like-named edges (0 while both are free).
int slotForSide(const Board& board, int t, int side);

// Free lines that give no triangle its second side, in slot order.
std::vector<int> safeLines(const Board& board);
// Every free line, in slot order.
std::vector<int> freeLines(const Board& board);

}  // namespace vrask::tetra4d
