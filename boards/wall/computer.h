// The computer player's decisions on the wall, from the board alone: a plain
// search by drawn lines, without look-ahead, memory or levels.
#pragma once

#include <array>
#include <functional>

#include "boards/wall/tables.h"

namespace vrask::wall {

// Per square (1..110), index 0 unused: `squaretaken`.
using SquareMarks = std::array<int, kSquares + 1>;

// The first square on the wall, in number order, that nobody has taken and
// that has four drawn lines; failing that three, then two, then one. 0 when
// there is none: then the computer doesn't move. `drawnLines(s)` counts the
// drawn lines of square s.
int computerTarget(const SquareMarks& squaretaken, const std::function<int(int)>& drawnLines,
                   const std::function<bool(int)>& onWallNow);

// The square the computer opens a game with: numbers 1 to 110 drawn from
// `pick(110)` until one is on the wall.
int openingSquare(const std::function<int(int)>& pick, const std::function<bool(int)>& onWallNow);

}  // namespace vrask::wall
