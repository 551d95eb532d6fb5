// The computer player's decisions on the cube board, from the board alone: no
// memory, no look-ahead, one small set of tests per kind of game. Each
// returns the candidates it would draw from; the form draws with its own
// generator, in the order the replies need.
#pragma once

#include <array>
#include <vector>

#include "boards/zorvex/tables.h"

namespace vrask::cube {

// Per line (1..54), per square (1..36) or per cube (1..8); index 0 unused.
using PerLine = std::array<int, kLines + 1>;
using PerSquare = std::array<int, kSquares + 1>;
using PerCube = std::array<int, kCubes + 1>;
using SquareInks = std::array<std::array<int, 5>, kSquares + 1>;
using CubeFaces = std::array<std::array<int, 7>, kCubes + 1>;

// How many of each square's four lines are painted (non-zero in `squareinks`).
PerSquare paintedSides(const SquareInks& squareinks);

// Ombrel: the first square with three lines, which the computer finishes; 0
// when there is none.
int squareToFinish(const PerSquare& painted);
// The free lines, in index order, that lie in no square with two lines: they
// leave no square open at three. Empty when every free line does.
std::vector<int> safeLines(const Tables& t, const PerSquare& painted, const PerLine& lineowner);
std::vector<int> freeLines(const PerLine& lineowner);

// Zorvex (Squares): the unclaimed square of the first cube with five claimed,
// or 0.
int cubeToFinish(const Tables& t, const CubeFaces& cubefaces);
// The unclaimed squares that are in no cube with four claimed; if that leaves
// none, every unclaimed square.
std::vector<int> squareCandidates(const Tables& t, const CubeFaces& cubefaces,
                                  const PerSquare& circlestate);

// The Vrask scan: among the free squares, the first with four painted lines,
// else three, two, one; 0 when no free square has a painted line.
int vraskScan(const PerSquare& painted, const PerSquare& circlestate);
// Every free square (circlestate 0), for a random reply.
std::vector<int> freeSquares(const PerSquare& circlestate);

}  // namespace vrask::cube
