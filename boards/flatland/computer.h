// The computer player's decisions on the square board, from the board alone:
// it has no memory and no look-ahead. Its strength is in the order of its
// tests (frame/cell_board.h holds the rules it shares with other boards); the
// one random step is left to the form, which owns the generator.
#pragma once

#include <array>

#include "boards/flatland/tables.h"

namespace vrask::flatland {

// Per square (1..81) or per line (1..180); index 0 unused.
using SquareCounts = std::array<int, kSquares + 1>;
using LineOwners = std::array<int, kLines + 1>;
using SideOwners = std::array<std::array<int, 5>, kSquares + 1>;  // sqowner

// How many sides of each square have an owner: any owner when `owner` is 0,
// else only that one (in Dorvel only the mover's own sides count).
Counts countOwnedSides(const SideOwners& sqowner, int owner = 0);

}  // namespace vrask::flatland
