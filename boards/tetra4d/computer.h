// The computer's decisions on the 4D triangular board, from the board alone.
// Random numbers come through `pick(n)`, a whole number 1..n, drawn in the
// order the moves need them.
#pragma once

#include <functional>
#include <vector>

#include "boards/tetra4d/rules.h"

namespace vrask::tetra4d {

using Pick = std::function<int(int n)>;

// Capture: the highest-numbered triangle with two painted sides that one line
// finishes, and that line (its first free side in side order); 0 if none.
int captureLine(const Board& board);

// Without a capture: a random line that gives no triangle its second side, or
// with none left (`forced` set) a random free line; 0 if the board is full.
int quietLine(const Board& board, const Pick& pick, bool& forced);

// A circle game: one of the open circles (triangle numbers) at random.
int chooseCircle(const std::vector<int>& open, const Pick& pick);

}  // namespace vrask::tetra4d
