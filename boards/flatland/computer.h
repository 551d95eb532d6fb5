// The computer player's decisions on the square board, from the board alone:
// it has no memory and no look-ahead. Its strength is in the order of its
// tests; the one random step is left to the form, which owns the generator.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "boards/flatland/tables.h"

namespace vrask::flatland {

// Per square (1..81) or per line (1..180); index 0 unused.
using SquareCounts = std::array<int, kSquares + 1>;
using LineOwners = std::array<int, kLines + 1>;
using SideOwners = std::array<std::array<int, 5>, kSquares + 1>;  // sqowner
// Whether a square or line shows on the board at its size.
using Shows = std::function<bool(int)>;

// How many sides of each square have an owner: any owner when `owner` is 0,
// else only that one.
SquareCounts countOwnedSides(const SideOwners& sqowner, int owner = 0);
// How many sides of each square are marked lines.
SquareCounts countMarkedSides(const SideTable& sqline, const Shows& marked);

// Line games. The squares with three owned sides, lowest first: the computer
// completes them before anything else.
std::vector<int> squaresToComplete(const SquareCounts& sidecount);

// The lines it would draw when there is nothing to complete: the free lines
// on the board that give no square a third side, in ascending order; when
// every free line does, all free lines on the board.
std::vector<int> lineCandidates(const SideTable& sqline, const SquareCounts& sidecount,
                                const LineOwners& lineown, const Shows& lineShows);

// Vrask games. The first square on the board it would play without a draw:
// one whose four marked lines are of mixed colours (its circle still open),
// else one with three marked sides, else one with two; 0 when there is none.
int vraskTarget(const SquareCounts& sidecount, const SquareCounts& sqdone,
                const Shows& squareShows);
// The open circles on the board, to draw from.
std::vector<int> openSquares(const SquareCounts& sqdone, const Shows& squareShows);

}  // namespace vrask::flatland
