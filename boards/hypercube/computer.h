// The computer player's decisions on the HyperCube board, from the board
// alone: no memory, no look-ahead, no levels. The same counting serves the
// hints. The random draws are the form's, which owns the generator.
#pragma once

#include <array>
#include <vector>

#include "boards/hypercube/tables.h"

namespace vrask::hypercube {

// Per square (1..72) or per slot (1..80); index 0 unused.
using SquareValues = std::array<int, kSquares + 1>;
using LineValues = std::array<int, kLines + 1>;
using SideValues = std::array<std::array<int, 5>, kSquares + 1>;  // sqside

// sidecount: how many sides of each square are painted (any value but 0).
SquareValues countPaintedSides(const SideValues& sqside);

// Line games. The line the computer takes to finish a square: the first
// unpainted side of the lowest square with three painted sides, or 0 when
// no square has three.
int lineToTake(const SideTable& sqln, const SideValues& sqside, const SquareValues& sidecount);

// The free lines (slots, ascending) that are no side of a square with two
// painted sides: they give nothing away. A line that would finish a square
// with three sides is among them unless a two-sided square holds it too.
std::vector<int> safeLines(const SideTable& sqln, const SquareValues& sidecount,
                           const LineValues& lnown);
// Every free line, ascending.
std::vector<int> freeLines(const LineValues& lnown);

// Square games. The free square (`sqtaken` 0) with the most painted sides,
// four down to one, the lowest number among equals; 0 when no free square has
// a painted side.
int squareToTake(const SquareValues& sidecount, const SquareValues& sqtaken);

}  // namespace vrask::hypercube
